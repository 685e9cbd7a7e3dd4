// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// A second start finds the window of the first one.

#include "settings/window/OneWindow.h"

#include "tests/support/FolderTest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>
#include <QThread>
#include <QtTest>

#include <atomic>
#include <memory>

using settings::OneWindow;
using tests::text;

class OneWindowTest : public tests::FolderTest
{
    Q_OBJECT

    // Starts a second one on a thread, since the first one answers in the event loop. `isAnswered` is
    // set when the thread has ended.
    static std::unique_ptr<QThread> startSecond(const QString &place, std::atomic<bool> &isAnswered)
    {
        std::unique_ptr<QThread> thread(QThread::create([place, &isAnswered] {
            OneWindow second(place);
            isAnswered = second.isShownByAnother();
        }));
        thread->start();
        return thread;
    }

    static bool isAnswered(const QString &place)
    {
        std::atomic<bool> isAnswered{false};
        const std::unique_ptr<QThread> thread = startSecond(place, isAnswered);
        const bool hasEnded = QTest::qWaitFor([&] { return thread->isFinished(); });
        thread->wait();
        return hasEnded && isAnswered;
    }

private Q_SLOTS:
    void theFirstOneIsAsked()
    {
        OneWindow first(place("socket"));
        QVERIFY(!first.isShownByAnother());
        QSignalSpy asked(&first, &OneWindow::asked);
        QVERIFY(isAnswered(place("socket")));
        QCOMPARE(asked.count(), 1);
        QVERIFY(isAnswered(place("socket")));
        QCOMPARE(asked.count(), 2);
    }

    void theNextOneIsFirstAfterTheFirstHasEnded()
    {
        {
            OneWindow first(place("socket"));
        }
        OneWindow next(place("socket"));
        QVERIFY(!next.isShownByAnother());
        QVERIFY(isAnswered(place("socket")));
    }

    void whatAKilledOneLeftBehindIsNoHindrance()
    {
        // A process number that no machine has.
        write(place("socket.lock"), "999999999\nmouse-gestures-settings\n\n");
        write(place("socket"), "");
        OneWindow next(place("socket"));
        QVERIFY(!next.isShownByAnother());
        QVERIFY(isAnswered(place("socket")));
    }

    void anotherDisplayHasItsOwnWindow()
    {
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(QFileInfo(place("socket")).path()));
        qunsetenv("WAYLAND_DISPLAY");
        qputenv("DISPLAY", ":1");
        const QString one = OneWindow::usualPlace();
        qputenv("DISPLAY", "far/away:2");
        const QString other = OneWindow::usualPlace();
        QVERIFY(one != other);
        QCOMPARE(QFileInfo(one).path(), QFileInfo(other).path());
        OneWindow first(one);
        QVERIFY(!isAnswered(other));
    }

    void withoutAPlaceEachHasAWindow_data()
    {
        QTest::addColumn<QString>("where");
        QTest::newRow("none") << QString();
        QTest::newRow("no folder") << text("/nowhere/socket");
        QTest::newRow("too long") << QDir::tempPath() + QLatin1Char('/')
                                         + QString(150, QLatin1Char('x'));
    }
    void withoutAPlaceEachHasAWindow()
    {
        QFETCH(QString, where);
        OneWindow first(where);
        QVERIFY(!first.isShownByAnother());
        QVERIFY(!isAnswered(where));
    }

    void noFolderIsNoPlace()
    {
        qunsetenv("XDG_RUNTIME_DIR");
        QCOMPARE(OneWindow::usualPlace(), QString());
        qputenv("XDG_RUNTIME_DIR", "/nowhere/at/all");
        QCOMPARE(OneWindow::usualPlace(), QString());
    }

    // The window opens all the same, if later.
    void aFirstOneThatHangsIsNotWaitedFor()
    {
        OneWindow first(place("socket"));
        std::atomic<bool> isAnswered{true};
        const std::unique_ptr<QThread> thread = startSecond(place("socket"), isAnswered);
        QVERIFY(thread->wait(10UL * OneWindow::kPatience)); // the event loop does not run
        QVERIFY(!isAnswered);
    }
};

QTEST_GUILESS_MAIN(OneWindowTest)
#include "tst_onewindow.moc"
