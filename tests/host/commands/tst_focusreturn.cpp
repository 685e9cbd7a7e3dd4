// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/commands/FocusReturn.h"

#include <QElapsedTimer>
#include <QTest>
#include <QWindow>

#include <memory>

using gesturewidget::isFocusOnItsWay;
using gesturewidget::whenFocusIsBack;

class FocusReturnTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyX11Waits();
    void aWindowThatHasGoneHasNoFocus();
    void runsAtOnceWhenTheFocusIsThere();
    void waitsUntilTheFocusIsThere();
    void waitsNotForEver();
    void runsNothingForAnObjectThatIsGone();
};

void FocusReturnTest::onlyX11Waits()
{
    QVERIFY(QGuiApplication::platformName() != QLatin1String("xcb"));
    QVERIFY(!QGuiApplication::focusWindow());
    QVERIFY(!isFocusOnItsWay());
    QVERIFY(isFocusOnItsWay(QStringLiteral("xcb")));
    QVERIFY(!isFocusOnItsWay(QStringLiteral("wayland")));
}

void FocusReturnTest::aWindowThatHasGoneHasNoFocus()
{
    QWindow window;
    window.show();
    window.requestActivate();
    QTRY_COMPARE(QGuiApplication::focusWindow(), &window);
    QVERIFY(!isFocusOnItsWay(QStringLiteral("xcb")));
    window.hide();
    QVERIFY(isFocusOnItsWay(QStringLiteral("xcb")));
}

void FocusReturnTest::runsAtOnceWhenTheFocusIsThere()
{
    int runs = 0;
    whenFocusIsBack(*this, [&runs] { ++runs; });
    QCOMPARE(runs, 0); // later, from the event loop
    QCoreApplication::sendPostedEvents();
    QCOMPARE(runs, 1);
}

void FocusReturnTest::waitsUntilTheFocusIsThere()
{
    int runs = 0;
    int questions = 0;
    whenFocusIsBack(
        *this, [&runs] { ++runs; }, [&questions] { return ++questions < 4; });
    QCoreApplication::sendPostedEvents();
    QCOMPARE(questions, 1);
    QCOMPARE(runs, 0);
    QTRY_COMPARE(runs, 1);
    QCOMPARE(questions, 4);
}

void FocusReturnTest::waitsNotForEver()
{
    QElapsedTimer clock;
    clock.start();
    bool hasRun = false;
    whenFocusIsBack(
        *this, [&hasRun] { hasRun = true; }, [] { return true; });
    while (!hasRun && clock.elapsed() < 20'000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
    QVERIFY(hasRun);
    QVERIFY(clock.elapsed() >= 100);
}

void FocusReturnTest::runsNothingForAnObjectThatIsGone()
{
    int runs = 0;
    auto context = std::make_unique<QObject>();
    bool hasAsked = false;
    whenFocusIsBack(
        *context, [&runs] { ++runs; },
        [&hasAsked] {
            hasAsked = true;
            return true;
        });
    QCoreApplication::sendPostedEvents();
    QVERIFY(hasAsked);
    context.reset();
    // Another one that began later has waited in vain, so the first one would have run.
    int later = 0;
    whenFocusIsBack(
        *this, [&later] { ++later; }, [] { return true; });
    QTRY_COMPARE(later, 1);
    QCOMPARE(runs, 0);
}

QTEST_MAIN(FocusReturnTest)

#include "tst_focusreturn.moc"
