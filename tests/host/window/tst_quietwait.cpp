// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/window/QuietWait.h"
#include "tests/support/FatalWarnings.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTest>

using gesturewidget::QuietWait;

namespace {

constexpr int kQuietTime = 100; // milliseconds

} // namespace

class QuietWaitTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init() { tests::resetWarnings(); }
    void cleanup() { QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings())); }

    void endsOnceItIsQuiet();
    void endsThoughItIsNeverQuiet();
    void stoppingGivesNoSignal();
};

void QuietWaitTest::endsOnceItIsQuiet()
{
    QuietWait wait(kQuietTime);
    QSignalSpy over(&wait, &QuietWait::over);
    QElapsedTimer sinceLast;
    int changes = 0;
    QTimer changing;
    connect(&changing, &QTimer::timeout, &wait, [&] {
        wait.note();
        sinceLast.start();
        if (++changes == 5)
            changing.stop();
    });
    changing.start(kQuietTime / 4);
    QVERIFY(over.wait());
    QCOMPARE(changes, 5);
    QVERIFY(sinceLast.elapsed() >= kQuietTime * 9 / 10);
    QVERIFY(!over.wait(QuietWait::kLongestTime)); // no second signal without a change
    wait.note();
    QVERIFY(over.wait());
}

void QuietWaitTest::endsThoughItIsNeverQuiet()
{
    QuietWait wait(kQuietTime);
    QSignalSpy over(&wait, &QuietWait::over);
    QTimer changing;
    connect(&changing, &QTimer::timeout, &wait, &QuietWait::note);
    QElapsedTimer elapsed;
    elapsed.start();
    changing.start(kQuietTime / 5);
    QTRY_COMPARE_WITH_TIMEOUT(over.count(), 2, 5 * QuietWait::kLongestTime);
    QVERIFY(elapsed.elapsed() >= 2 * QuietWait::kLongestTime * 9 / 10);
}

void QuietWaitTest::stoppingGivesNoSignal()
{
    QuietWait wait(kQuietTime);
    QSignalSpy over(&wait, &QuietWait::over);
    wait.note();
    wait.stop();
    QVERIFY(!over.wait(QuietWait::kLongestTime + kQuietTime));
}

QTEST_GUILESS_MAIN(QuietWaitTest)
#include "tst_quietwait.moc"
