// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/documents/ViewFinder.h"
#include "tests/support/FatalWarnings.h"

#include <QGraphicsView>
#include <QMainWindow>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

using gesturewidget::QuietWait;
using gesturewidget::ViewFinder;

class ViewFinderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void aWidgetThatNeverRestsIsFound();
};

// A program may keep animating a panel or fitting a widget to its content.
void ViewFinderTest::aWidgetThatNeverRestsIsFound()
{
    QMainWindow window;
    auto *view = new QGraphicsView;
    window.setCentralWidget(view);
    auto *restless = new QWidget(&window);
    window.resize(600, 500);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTimer resizing;
    connect(&resizing, &QTimer::timeout, restless,
            [restless] { restless->resize(50 + (restless->width() + 1) % 10, 20); });
    resizing.start(150);
    ViewFinder finder({}, true);
    QSignalSpy found(&finder, &ViewFinder::viewFound);
    finder.start();
    QTRY_VERIFY_WITH_TIMEOUT(!found.isEmpty(), 2 * QuietWait::kLongestTime);
    QCOMPARE(found.first().first().value<QWidget *>(), view->viewport());
}

QTEST_MAIN(ViewFinderTest)
#include "tst_viewfinder.moc"
