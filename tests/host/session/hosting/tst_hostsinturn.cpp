// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/session/GestureHost.h"
#include "tests/support/FolderTest.h"

#include <QApplication>
#include <QEventLoop>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QTimer>

#include <malloc.h>

namespace {

// Bytes. The documents and the session's own object stay, with what QObject keeps for each: 6,500
// with Qt 6. With its menus and commands, a session of this program has 38,000, of a real one twice
// as much.
constexpr qint64 kMostKept = 8000;

class Drafter : public QMainWindow
{
public:
    Drafter()
    {
        QMenu *draw = menuBar()->addMenu(QStringLiteral("&Draw"));
        for (int i = 0; i < 12; ++i)
            draw->addAction(QStringLiteral("Line %1 points").arg(i))->setObjectName(QString::number(i));
        tools = menuBar()->addMenu(QStringLiteral("&Tools"));
        resize(600, 500);
        setCentralWidget(new QWidget);
    }

    QMenu *tools = nullptr;
};

// Enters an event loop, lets the program become idle in it, and then runs `inside` there.
template <class Inside> void inEventLoop(Inside inside)
{
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [&loop, inside] {
        QTimer::singleShot(0, &loop, [&loop, inside] {
            inside();
            loop.quit();
        });
    });
    loop.exec();
}

// Without the C library's cache of freed blocks, which counts as used: it holds up to 2,000
// bytes more or less for each host of these tests.
qint64 bytesInUse()
{
    return static_cast<qint64>(mallinfo2().uordblks);
}

void startAndStop(Drafter &window)
{
    gesturewidget::GestureHost gestures(&window);
    gestures.addView(window.centralWidget());
    QString error;
    QVERIFY2(gestures.start(&error), qPrintable(error));
    QTRY_COMPARE(window.tools->actions().size(), 1);
    inEventLoop([] {});
}

// The bytes that each of some hosts in turn keeps. The first ones fill caches.
qint64 bytesKeptByEach(Drafter &window)
{
    for (int i = 0; i < 4; ++i)
        startAndStop(window);
    const qint64 before = bytesInUse();
    constexpr int kRounds = 10;
    for (int i = 0; i < kRounds; ++i)
        startAndStop(window);
    return (bytesInUse() - before) / kRounds;
}

} // namespace

// A program may start and stop gestures any number of times.
class HostsInTurnTest : public tests::FolderTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void keepNearlyNothing();
    void keepEverythingInANestedLoop();
};

void HostsInTurnTest::init()
{
    QVERIFY2(qgetenv("GLIBC_TUNABLES").contains("tcache_count=0"), "CTest sets GLIBC_TUNABLES");
    FolderTest::init();
    useAsHome();
}

void HostsInTurnTest::keepNearlyNothing()
{
    Drafter window;
    window.show();
    const qint64 kept = bytesKeptByEach(window);
    QVERIFY2(kept < kMostKept, qPrintable(QStringLiteral("%1 bytes each").arg(kept)));
}

// A dialog of the module may be open around the loop, and still use what its host gave it.
void HostsInTurnTest::keepEverythingInANestedLoop()
{
    Drafter window;
    window.show();
    startAndStop(window); // this also frees what the test before has left
    const qint64 before = bytesInUse();
    qint64 kept = 0;
    inEventLoop([&] { kept = bytesKeptByEach(window); });
    QVERIFY2(kept > 3 * kMostKept, qPrintable(QStringLiteral("%1 bytes each").arg(kept)));
    startAndStop(window);
    constexpr int kRounds = 15;
    const qint64 left = (bytesInUse() - before) / kRounds;
    QVERIFY2(left < kMostKept, qPrintable(QStringLiteral("%1 bytes each").arg(left)));
}

QTEST_MAIN(HostsInTurnTest)
#include "tst_hostsinturn.moc"
