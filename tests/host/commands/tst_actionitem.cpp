// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/commands/ActionItem.h"
#include "tests/support/FatalWarnings.h"

#include <QAction>
#include <QTest>
#include <QWidget>

using gesturewidget::ActionItem;

class ActionItemTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void theTextThatSaysMoreIsTheTip_data();
    void theTextThatSaysMoreIsTheTip();
    void withoutAnActionThereIsNothingToRead();
    void inAWindowOfItsOwnItIsNew();
    void itIsPresentInSomeWindows();
};

void ActionItemTest::theTextThatSaysMoreIsTheTip_data()
{
    QTest::addColumn<QString>("statusTip");
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<QString>("whatsThis");
    QTest::addColumn<QString>("tip");
    const QString longest(200, QLatin1Char('t'));
    const QString tooLong(201, QLatin1Char('p')); // a page of help
    const QString more = QStringLiteral("Draws a line");
    const QString same = QStringLiteral("Line");
    QTest::newRow("status tip") << more << same << QString() << more;
    QTest::newRow("tooltip") << same << more << longest << more;
    QTest::newRow("help") << same << same << more << more;
    QTest::newRow("none says more") << QStringLiteral("Line (L)") << same << QString()
                                    << QStringLiteral("Line (L)");
    QTest::newRow("200 characters") << longest << more << QString() << longest;
    QTest::newRow("201 characters") << tooLong << more << QString() << more;
    QTest::newRow("only pages of help") << tooLong << tooLong << tooLong << tooLong;
}

void ActionItemTest::theTextThatSaysMoreIsTheTip()
{
    QFETCH(QString, statusTip);
    QFETCH(QString, toolTip);
    QFETCH(QString, whatsThis);
    QAction action(QStringLiteral("&Line"));
    action.setStatusTip(statusTip);
    action.setToolTip(toolTip);
    action.setWhatsThis(whatsThis);
    ActionItem item(QStringLiteral("line"), QStringLiteral("line"));
    item.setAction(&action);
    QTEST(item.remembered().tip, "tip");
}

void ActionItemTest::withoutAnActionThereIsNothingToRead()
{
    ActionItem item(QStringLiteral("line"), QStringLiteral("line"));
    QVERIFY(!item.read());
    {
        QAction action(QStringLiteral("&Line"));
        item.setAction(&action);
        QVERIFY(!item.read()); // it was read already
        action.setText(QStringLiteral("&Segment"));
        QVERIFY(item.read());
        QCOMPARE(item.caption(), QStringLiteral("Segment"));
    }
    QVERIFY(!item.read());
    QCOMPARE(item.caption(), QStringLiteral("Segment"));
}

void ActionItemTest::inAWindowOfItsOwnItIsNew()
{
    const QWidget first;
    const QWidget second;
    QAction action(QStringLiteral("&Line"));
    ActionItem item(QStringLiteral("line"), QStringLiteral("line"));
    item.setAction(&action);
    item.here.isPresent = true;
    item.here.wasPresent = true;
    item.showIn(&first, &second);
    QCOMPARE(item.action(), nullptr);
    QCOMPARE(item.address(), nullptr);
    QVERIFY(!item.here.isPresent);
    QVERIFY(!item.here.wasPresent);
    QCOMPARE(item.caption(), QStringLiteral("Line"));
    item.showIn(&second, &first);
    QCOMPARE(item.action(), &action);
    QVERIFY(item.here.isPresent);
    QVERIFY(item.here.wasPresent);
}

void ActionItemTest::itIsPresentInSomeWindows()
{
    const QWidget first;
    const QWidget second;
    const QWidget third;
    QAction action(QStringLiteral("&Line"));
    QAction other(QStringLiteral("&Line"));
    ActionItem item(QStringLiteral("line"), QStringLiteral("line"));
    item.setAction(&action);
    item.here.isPresent = true;
    item.showIn(&first, &second);
    item.setAction(&other);
    item.here.isPresent = false;
    item.showIn(&second, &third);
    QVERIFY(item.isPresentIn(&first));
    QVERIFY(!item.isPresentIn(&second)); // it has an action there, in no menu
    QVERIFY(!item.isPresentIn(&third));
    item.forget(&first);
    QVERIFY(!item.isPresentIn(&first));
}

QTEST_MAIN(ActionItemTest)
#include "tst_actionitem.moc"
