// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/window/MainWindows.h"
#include "tests/support/FatalWarnings.h"

#include <QApplication>
#include <QDialog>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QSignalSpy>
#include <QTest>

#include <array>
#include <functional>
#include <memory>

using gesturewidget::MainWindows;

class MainWindowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init()
    {
        tests::resetWarnings();
        for (auto &window : m_windows)
            window = std::make_unique<QMainWindow>();
        m_all = std::make_unique<MainWindows>(m_windows[0].get());
        m_all->add(m_windows[1].get());
        m_all->add(m_windows[2].get());
    }
    void cleanup()
    {
        m_all.reset();
        for (auto &window : m_windows)
            window.reset();
        QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
    }

    void theFirstIsCurrent();
    void anActivatedWindowIsCurrent();
    void aWindowThatIsNotKnownIsNeverCurrent();
    void nothingChangesDuringAHold();
    void nothingChangesWhileBusy();
    void aTurnEndsWhereItBegan();
    void aTurnMayEndWithoutItsWindows();
    void theLastOneTakesThePlaceOfTheCurrent_data();
    void theLastOneTakesThePlaceOfTheCurrent();
    void aHiddenWindowComesLast();
    void theLastToGoIsAnnounced_data();
    void theLastToGoIsAnnounced();
    void widgetsBelongToTheirWindow();

private:
    [[nodiscard]] QWidget *window(std::size_t index) const { return m_windows[index].get(); }
    static void activate(QWidget *window)
    {
        QEvent event(QEvent::WindowActivate);
        QCoreApplication::sendEvent(window, &event);
    }

    std::array<std::unique_ptr<QMainWindow>, 3> m_windows;
    std::unique_ptr<MainWindows> m_all;
};

void MainWindowsTest::theFirstIsCurrent()
{
    QCOMPARE(m_all->current(), window(0));
    QCOMPARE(m_all->all().size(), 3);
    int added = 0;
    const auto count = [&added] { ++added; };
    connect(m_all.get(), &MainWindows::added, this, count);
    m_all->add(m_windows[1].get());
    m_all->add(nullptr);
    QCOMPARE(added, 0);
    QVERIFY(!m_all->contains(nullptr));
    const MainWindows none(nullptr);
    QVERIFY(none.isEmpty());
    QCOMPARE(none.current(), nullptr);
}

void MainWindowsTest::anActivatedWindowIsCurrent()
{
    QSignalSpy changed(m_all.get(), &MainWindows::currentChanged);
    activate(window(1));
    QCOMPARE(m_all->current(), window(1));
    activate(window(1));
    QCOMPARE(changed.count(), 1);
    m_all->makeCurrent(window(2));
    QCOMPARE(m_all->current(), window(2));
    QCOMPARE(changed.count(), 2);
}

void MainWindowsTest::aWindowThatIsNotKnownIsNeverCurrent()
{
    QMainWindow other;
    m_all->makeCurrent(&other);
    m_all->makeCurrent(nullptr);
    QCOMPARE(m_all->current(), window(0));
}

void MainWindowsTest::nothingChangesDuringAHold()
{
    window(1)->show();
    QVERIFY(QTest::qWaitForWindowActive(window(1)));
    m_all->makeCurrent(window(0));
    {
        const MainWindows::Hold outer(m_all.get());
        {
            const MainWindows::Hold inner(m_all.get());
            activate(window(2));
        }
        activate(window(2));
        QCOMPARE(m_all->current(), window(0));
    }
    QCOMPARE(m_all->current(), window(1)); // the active one
    const MainWindows::Hold none(nullptr);
    const MainWindows::Hold outlives(m_all.get());
    m_all.reset();
}

void MainWindowsTest::nothingChangesWhileBusy()
{
    bool isBusy = true;
    m_all->setBusy([&isBusy] { return isBusy; });
    activate(window(1));
    m_all->makeCurrent(window(1));
    QCOMPARE(m_all->current(), window(0));
    isBusy = false;
    activate(window(1));
    QCOMPARE(m_all->current(), window(1));
}

// Something that was chosen in a window runs in it, whatever happened since.
void MainWindowsTest::aTurnEndsWhereItBegan()
{
    const MainWindows::Hold hold(m_all.get());
    m_all->setBusy([] { return true; });
    {
        const MainWindows::Turn turn(m_all.get(), window(1));
        QCOMPARE(m_all->current(), window(1));
    }
    QCOMPARE(m_all->current(), window(0));
    {
        const MainWindows::Turn same(m_all.get(), window(0));
        const MainWindows::Turn none(nullptr, nullptr);
        QCOMPARE(m_all->current(), window(0));
    }
    QCOMPARE(m_all->current(), window(0));
}

void MainWindowsTest::aTurnMayEndWithoutItsWindows()
{
    {
        const MainWindows::Turn turn(m_all.get(), window(1));
        m_windows[0].reset();
    }
    QCOMPARE(m_all->current(), window(1));
    {
        const MainWindows::Turn turn(m_all.get(), window(2));
        m_windows[2].reset();
    }
    QCOMPARE(m_all->current(), window(1));
    const MainWindows::Turn turn(m_all.get(), window(1));
    m_all.reset();
}

void MainWindowsTest::theLastOneTakesThePlaceOfTheCurrent_data()
{
    QTest::addColumn<bool>("isLater");
    QTest::newRow("at once") << false;
    QTest::newRow("from the event loop") << true;
}

void MainWindowsTest::theLastOneTakesThePlaceOfTheCurrent()
{
    QFETCH(bool, isLater);
    for (const auto &each : m_windows)
        each->show();
    QVERIFY(QTest::qWaitForWindowActive(window(2)));
    m_all->makeCurrent(window(2));
    m_all->makeCurrent(window(0));
    m_all->makeCurrent(window(1));
    QSignalSpy removed(m_all.get(), &MainWindows::removed);
    QWidget *currentAtRemoval = nullptr;
    const auto look = [this, &currentAtRemoval] { currentAtRemoval = m_all->current(); };
    connect(m_all.get(), &MainWindows::removed, this, look);
    if (isLater)
        m_windows[1].release()->deleteLater();
    else
        m_windows[1].reset();
    QTRY_COMPARE(removed.count(), 1);
    QCOMPARE(currentAtRemoval, window(0));
    m_windows[0].reset();
    QCOMPARE(m_all->current(), window(2));
    QCOMPARE(removed.count(), 2);
}

void MainWindowsTest::aHiddenWindowComesLast()
{
    window(1)->show();
    m_all->makeCurrent(window(1));
    m_all->makeCurrent(window(2));
    m_all->makeCurrent(window(0));
    window(0)->show();
    m_windows[0].reset();
    QCOMPARE(m_all->current(), window(1)); // 2 was current later, but nobody sees it
    m_windows[1].reset();
    QCOMPARE(m_all->current(), window(2));
}

void MainWindowsTest::theLastToGoIsAnnounced_data()
{
    QTest::addColumn<bool>("isComplete");
    QTest::newRow("by its destructor") << false;
    QTest::newRow("from the event loop") << true;
}

void MainWindowsTest::theLastToGoIsAnnounced()
{
    QFETCH(bool, isComplete);
    QSignalSpy last(m_all.get(), &MainWindows::lastLeaves);
    m_windows[0].reset();
    m_windows[1].reset();
    QCOMPARE(last.count(), 0);
    QWidget *current = nullptr;
    const auto look = [this, &current] { current = m_all->current(); };
    connect(m_all.get(), &MainWindows::lastLeaves, this, look);
    QWidget *const expected = window(2);
    if (isComplete)
        m_windows[2].release()->deleteLater();
    else
        m_windows[2].reset();
    QTRY_COMPARE(last.count(), 1);
    QCOMPARE(last.first().first().toBool(), isComplete);
    QCOMPARE(current, expected); // still
    QVERIFY(m_all->isEmpty());
    QCOMPARE(m_all->current(), nullptr);
}

void MainWindowsTest::widgetsBelongToTheirWindow()
{
    QWidget inside(window(1));
    QCOMPARE(m_all->ownerOf(&inside), window(1));
    QDialog dialog(&inside);
    QWidget inDialog(&dialog);
    QCOMPARE(m_all->ownerOf(&inDialog), window(1));
    QDockWidget dock(window(1));
    dock.setFloating(true);
    QCOMPARE(m_all->ownerOf(&dock), window(1));
    // A detached view without menus of its own.
    QMainWindow detached(window(1));
    QCOMPARE(m_all->ownerOf(&detached), window(1));
    // A text editor, for example.
    detached.menuBar()->addMenu(QStringLiteral("File"));
    QWidget text(&detached);
    QCOMPARE(m_all->ownerOf(&text), &detached);
    QWidget alone;
    QCOMPARE(m_all->ownerOf(&alone), nullptr);
    QCOMPARE(m_all->ownerOf(nullptr), nullptr);
}

QTEST_MAIN(MainWindowsTest)
#include "tst_mainwindows.moc"
