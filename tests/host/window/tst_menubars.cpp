// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/window/MenuBars.h"
#include "tests/support/FatalWarnings.h"

#include <QDialog>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QTest>
#include <QToolBar>
#include <QVBoxLayout>

using gesturewidget::hasMenuBar;
using gesturewidget::menuBarsOf;
using gesturewidget::toolBarsOf;

class MenuBarsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void aWindowWithoutABarGetsNone();
    void itsOwnBarComesFirst();
    void aBarInsideTheMenuWidgetCounts();
    void barsOfOtherWindowsDoNotCount();
    void floatingPartsCount();
    void noWindowHasNoBars();
};

void MenuBarsTest::aWindowWithoutABarGetsNone()
{
    const QMainWindow window;
    QVERIFY(!hasMenuBar(&window));
    QVERIFY(menuBarsOf(&window).isEmpty());
    QVERIFY(toolBarsOf(&window).isEmpty());
    QCOMPARE(window.menuWidget(), nullptr); // the question has not created a bar
}

void MenuBarsTest::itsOwnBarComesFirst()
{
    QMainWindow window;
    auto *part = new QMainWindow; // an editor for notes, for example
    part->setWindowFlags(Qt::Widget);
    window.setCentralWidget(part);
    QMenuBar *ofPart = part->menuBar();
    QMenuBar *own = window.menuBar();
    QVERIFY(hasMenuBar(&window));
    QCOMPARE(menuBarsOf(&window), QVector<QMenuBar *>({own, ofPart}));
    QCOMPARE(menuBarsOf(part), QVector<QMenuBar *>{ofPart});
}

void MenuBarsTest::aBarInsideTheMenuWidgetCounts()
{
    QMainWindow window;
    auto *header = new QWidget;
    auto *bar = new QMenuBar;
    (new QVBoxLayout(header))->addWidget(bar);
    window.setMenuWidget(header);
    QCOMPARE(menuBarsOf(&window), QVector<QMenuBar *>{bar});
}

void MenuBarsTest::barsOfOtherWindowsDoNotCount()
{
    QMainWindow window;
    auto *editor = new QMainWindow(&window);
    editor->menuBar()->addMenu(QStringLiteral("Text"));
    auto *dialog = new QDialog(&window);
    dialog->setLayout(new QVBoxLayout);
    dialog->layout()->setMenuBar(new QMenuBar);
    new QToolBar(dialog);
    QVERIFY(!hasMenuBar(&window));
    QVERIFY(toolBarsOf(&window).isEmpty());
    QVERIFY(hasMenuBar(editor));
}

void MenuBarsTest::floatingPartsCount()
{
    QMainWindow window;
    QToolBar *toolBar = window.addToolBar(QStringLiteral("Draw"));
    auto *dock = new QDockWidget(&window);
    auto *inDock = new QMainWindow;
    inDock->setWindowFlags(Qt::Widget);
    dock->setWidget(inDock);
    window.addDockWidget(Qt::LeftDockWidgetArea, dock);
    QMenuBar *bar = inDock->menuBar();
    dock->setFloating(true);
    toolBar->setWindowFlag(Qt::Tool);
    QVERIFY(dock->isWindow() && toolBar->isWindow());
    QCOMPARE(menuBarsOf(&window), QVector<QMenuBar *>{bar});
    QCOMPARE(toolBarsOf(&window), QVector<QToolBar *>{toolBar});
}

void MenuBarsTest::noWindowHasNoBars()
{
    QVERIFY(!hasMenuBar(nullptr));
    QVERIFY(menuBarsOf(nullptr).isEmpty());
    QVERIFY(toolBarsOf(nullptr).isEmpty());
}

QTEST_MAIN(MenuBarsTest)
#include "tst_menubars.moc"
