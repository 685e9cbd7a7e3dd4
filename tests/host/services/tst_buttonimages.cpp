// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/services/ButtonImages.h"
#include "tests/support/FatalWarnings.h"

#include <QDir>
#include <QFile>
#include <QTest>

// This test program has its own help.png, see fixtures/sharedbuttons.qrc.
class ButtonImagesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void theProgramKeepsItsOwn();
};

void ButtonImagesTest::theProgramKeepsItsOwn()
{
    const auto content = [](const char *name) {
        QFile file(QStringLiteral(":/images/shared/") + QLatin1String(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    QCOMPARE(QDir(QStringLiteral(":/images/shared")).entryList(),
             QStringList(QStringLiteral("help.png")));
    gesturewidget::provideButtonImages();
    gesturewidget::provideButtonImages();
    QCOMPARE(content("help.png").trimmed(), QByteArray("the program's own"));
    QVERIFY(content("ok.png").startsWith("\x89PNG"));
    QVERIFY(content("cancel.png").startsWith("\x89PNG"));
}

QTEST_GUILESS_MAIN(ButtonImagesTest)
#include "tst_buttonimages.moc"
