// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// The obstacles to gestures, in plain words.

#include "settings/health/Advice.h"

#include <QtTest>

using launcher::Diagnosis;
using launcher::Finding;
using settings::Advice;

class AdviceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysNothingIfNothingIsWrong()
    {
        Diagnosis diagnosis;
        diagnosis.findings = {{Finding::Matter::Program, QStringLiteral("draw"), false}};
        QVERIFY(settings::adviceFor(diagnosis, QStringLiteral("Draw")).isEmpty());
    }

    void everyProblemHasWordsForAPerson_data()
    {
        QTest::addColumn<int>("matter");
        QTest::addColumn<QString>("found");
        QTest::addColumn<QString>("says");
        QTest::addColumn<QString>("remedy");
        const auto row = [](const char *name, Finding::Matter matter, const char *found,
                            const char *says, const char *remedy) {
            QTest::newRow(name) << int(matter) << QString::fromLatin1(found) << QString::fromLatin1(says)
                                << QString::fromLatin1(remedy);
        };
        using Matter = Finding::Matter;
        row("gone", Matter::Program, "draw, not found", "Draw is no longer installed", "Install it");
        row("no Qt", Matter::Qt, "none; gestures need ...", "not made with Qt Widgets", "");
        row("no plug-in", Matter::PlugIn, "not installed for Qt 5", "not installed",
            "package gesturewidget.");
        row("no plug-in for Qt 6", Matter::PlugIn, "not installed for Qt 6", "not installed",
            "gesturewidget-qt6");
        row("Wayland", Matter::Display, "Wayland without X11", "without X11", "XWayland");
        row("profile", Matter::Profile, "/p/draw.json: line 3", "/p/draw.json: line 3", "Mend");
        row("read-only", Matter::Settings, "/s/draw.ini, cannot be written", "/s/draw.ini", "writable");
        row("off", Matter::Gestures, "switched off in the settings", "switched off", "");
        row("crash", Matter::Crash, "off since draw crashed", "Draw crashed", "try again");
    }
    void everyProblemHasWordsForAPerson()
    {
        QFETCH(int, matter);
        QFETCH(QString, found);
        QFETCH(QString, says);
        QFETCH(QString, remedy);
        Diagnosis diagnosis;
        diagnosis.findings = {{static_cast<Finding::Matter>(matter), found, true}};
        const QList<Advice> advice = settings::adviceFor(diagnosis, QStringLiteral("Draw"));
        QCOMPARE(advice.size(), 1);
        QVERIFY2(advice.first().text.contains(says), qPrintable(advice.first().text));
        QVERIFY2(advice.first().remedy.contains(remedy), qPrintable(advice.first().remedy));
        QVERIFY(!advice.first().text.startsWith(QLatin1Char('!')));
        const bool canBeSwitchedOn =
            matter == int(Finding::Matter::Gestures) || matter == int(Finding::Matter::Crash);
        QCOMPARE(advice.first().action == Advice::Remedy::EnableGestures, canBeSwitchedOn);
    }
};

QTEST_MAIN(AdviceTest)
#include "tst_advice.moc"
