// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "examples/sketchpad/CommandLine.h"
#include "tests/support/FatalWarnings.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QtTest>

#include <cmath>

using Kind = CommandLine::Input::Kind;
Q_DECLARE_METATYPE(CommandLine::Input::Kind)

class SketchCommandLineTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void whatIsTypedIsUnderstood_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<Kind>("kind");
        QTest::addColumn<QPointF>("point");
        QTest::addColumn<double>("number");
        const auto row = [](const char *text, Kind kind, const QPointF &point = {}, double number = 0) {
            QTest::newRow(*text ? text : "empty")
                << QString::fromLatin1(text) << kind << point << number;
        };
        // The last point is 100,200.
        row("", Kind::Nothing);
        row("   ", Kind::Nothing);
        row("10,20", Kind::Point, {10, 20});
        row(" -1.5 , 2e1 ", Kind::Point, {-1.5, 20});
        row("@10,-20", Kind::Point, {110, 180});
        row("5<90", Kind::Point, {0, 5});
        row("@5<180", Kind::Point, {95, 200});
        row("3.5", Kind::Number, {}, 3.5);
        row("-7", Kind::Number, {}, -7);
        row("LINE", Kind::Words);
        row("10,", Kind::Words);
        row(",10", Kind::Words);
        row("10,20,30", Kind::Words);
        row("10<20<30", Kind::Words);
        row("@", Kind::Words);
        row("@5", Kind::Words);
        row("a,b", Kind::Words);
        row("1,b", Kind::Words);
        row("nan", Kind::Words);
        row("inf", Kind::Words);
        row("nan,1", Kind::Words);
        row("1,inf", Kind::Words);
        row("1e999", Kind::Words);
    }
    void whatIsTypedIsUnderstood()
    {
        QFETCH(QString, text);
        QFETCH(Kind, kind);
        QFETCH(QPointF, point);
        QFETCH(double, number);
        const CommandLine::Input input = CommandLine::parse(text, {100, 200});
        QCOMPARE(input.kind, kind);
        if (kind == Kind::Point) {
            QVERIFY(std::abs(input.point.x() - point.x()) < 1e-9);
            QVERIFY(std::abs(input.point.y() - point.y()) < 1e-9);
        }
        if (kind == Kind::Number)
            QCOMPARE(input.number, number);
    }

    void enterHandsTheTextOverAndClears()
    {
        CommandLine line;
        QSignalSpy entered(&line, &CommandLine::entered);
        auto *edit = line.findChild<QLineEdit *>(QStringLiteral("commandLine"));
        QTest::keyClicks(edit, QStringLiteral("line"));
        QCOMPARE(line.text(), QStringLiteral("line"));
        QTest::keyClick(edit, Qt::Key_Return);
        QCOMPARE(entered.count(), 1);
        QCOMPARE(entered.at(0).at(0).toString(), QStringLiteral("line"));
        QVERIFY(line.text().isEmpty());
        QTest::keyClick(edit, Qt::Key_Return);
        QCOMPARE(entered.count(), 2);
    }
};

QTEST_MAIN(SketchCommandLineTest)
#include "tst_sketchcommandline.moc"
