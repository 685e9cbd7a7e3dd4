// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/commands/CommandCatalogue.h"
#include "tests/host/support/DraftWindow.h"
#include "tests/host/support/Texts.h"
#include "tests/support/FatalWarnings.h"

#include <QPointer>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <ctime>
#include <limits>
#include <memory>

using gesturewidget::ActionItem;
using gesturewidget::CommandCatalogue;
using tests::DraftWindow;
using tests::text;

// The commands of a program with several main windows.
class CommandWindowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { tests::failOnWarnings(); }
    void init()
    {
        tests::resetWarnings();
        m_first = std::make_unique<DraftWindow>();
        m_second = std::make_unique<DraftWindow>();
        m_catalogue = std::make_unique<CommandCatalogue>(m_first.get(), m_wellKnown);
        m_catalogue->addWindow(m_second.get());
    }
    void cleanup()
    {
        m_catalogue.reset();
        m_second.reset();
        m_first.reset();
        QVERIFY2(tests::warnings().isEmpty(), qPrintable(tests::warnings()));
    }

    void eachWindowHasItsAction();
    void textsAreThoseOfTheCurrentWindow();
    void whatAWindowLacksIsKept();
    void groupsFollowTheCurrentWindow();
    void aRemovedWindowIsWatchedNoLonger();
    void aWindowIsAddedOnce();
    void changesElsewhereAreSeenLater_data();
    void changesElsewhereAreSeenLater();
    void aSwitchReadsNothingTwice();
    void aWindowThatGoesTakesItsActions();
    void anActionMayBeInTwoWindows();
    void anUnknownWindowChangesNothing();
    void theCurrentWindowIsNotRemoved();
    void windowsLeaveNothingBehind();
    void aSwitchCostsLittle();

private:
    ActionItem *item(const char *name) { return m_catalogue->find(QString::fromLatin1(name)); }

    const QHash<QString, QStringList> m_wellKnown{
        {QStringLiteral("ID_LINE"), {QStringLiteral("drawLine")}}};
    std::unique_ptr<DraftWindow> m_first;
    std::unique_ptr<DraftWindow> m_second;
    std::unique_ptr<CommandCatalogue> m_catalogue;
};

void CommandWindowsTest::eachWindowHasItsAction()
{
    ActionItem *line = item("ID_LINE");
    QCOMPARE(line->action(), m_first->line);
    const std::size_t count = m_catalogue->items().size();
    m_catalogue->setCurrentWindow(m_second.get());
    QCOMPARE(item("ID_LINE"), line);
    QCOMPARE(line->action(), m_second->line);
    QCOMPARE(m_catalogue->itemOf(m_second->line), line);
    QCOMPARE(m_catalogue->itemOf(m_first->line), nullptr); // not in this window
    QCOMPARE(item("File/Export/Picture...")->action(), m_second->exportPicture);
    QCOMPARE(m_catalogue->items().size(), count);
    m_catalogue->setCurrentWindow(m_first.get());
    QCOMPARE(line->action(), m_first->line);
    QCOMPARE(m_catalogue->itemOf(m_first->line), line);
}

void CommandWindowsTest::textsAreThoseOfTheCurrentWindow()
{
    QPixmap blue(16, 16);
    blue.fill(Qt::blue);
    m_second->line->setText(QStringLiteral("Second Line"));
    m_second->line->setStatusTip(QStringLiteral("In the second window"));
    m_second->line->setIcon(blue);
    ActionItem *line = item("ID_LINE");
    const qint64 icon = line->GetLargeIcon().cacheKey();
    QCOMPARE(text(line->GetCaption()), QStringLiteral("Line"));
    m_catalogue->setCurrentWindow(m_second.get());
    m_catalogue->update();
    QCOMPARE(text(line->GetCaption()), QStringLiteral("Second Line"));
    QCOMPARE(text(line->GetTip()), QStringLiteral("Second Line: In the second window"));
    QCOMPARE(line->icon().cacheKey(), m_second->line->icon().cacheKey());
    m_catalogue->setCurrentWindow(m_first.get());
    QCOMPARE(text(line->GetCaption()), QStringLiteral("Line"));
    QCOMPARE(text(line->GetTip()), QStringLiteral("Draws a line"));
    QCOMPARE(line->GetLargeIcon().cacheKey(), icon); // its halo is not drawn again
}

void CommandWindowsTest::whatAWindowLacksIsKept()
{
    delete m_second->circle;
    QAction *spiral = DraftWindow::addAction(m_second->draw, "Spiral", "drawSpiral");
    ActionItem *circle = item("drawCircle");
    m_catalogue->setCurrentWindow(m_second.get());
    QCOMPARE(item("drawCircle"), circle);
    QVERIFY(!circle->isUsable());
    QVERIFY(!circle->action());
    QCOMPARE(text(circle->GetCaption()), QStringLiteral("Circle"));
    QCOMPARE(item("drawSpiral")->action(), spiral);
    QVERIFY(item("drawSpiral")->isUsable());
    m_catalogue->setCurrentWindow(m_first.get());
    QVERIFY(circle->isUsable());
    QVERIFY(!item("drawSpiral")->isUsable());
    // Both are offered in both, so that no binding is lost.
    const auto isOffered = [this](const char *name) {
        const auto &groups = m_catalogue->groups();
        return std::any_of(groups.begin(), groups.end(), [this, name](const auto &group) {
            return std::count(group->items.begin(), group->items.end(), item(name)) == 1;
        });
    };
    QVERIFY(isOffered("drawSpiral"));
    m_catalogue->setCurrentWindow(m_second.get());
    QVERIFY(isOffered("drawCircle"));
}

void CommandWindowsTest::groupsFollowTheCurrentWindow()
{
    m_second->help->addAction(m_second->circle);
    m_second->draw->removeAction(m_second->circle);
    const auto groupOf = [this](const char *name) { return item(name)->here.group; };
    QCOMPARE(groupOf("drawCircle"), QStringLiteral("Draw"));
    QVERIFY(!m_catalogue->isShown(QStringLiteral("Extra")));
    m_second->addMenu("Extra", "extraMenu");
    m_catalogue->setCurrentWindow(m_second.get());
    QCOMPARE(groupOf("drawCircle"), QStringLiteral("Help"));
    QVERIFY(m_catalogue->isShown(QStringLiteral("Extra")));
    m_catalogue->setCurrentWindow(m_first.get());
    QCOMPARE(groupOf("drawCircle"), QStringLiteral("Draw"));
    QVERIFY(!m_catalogue->isShown(QStringLiteral("Extra")));
    // The lists of commands too, though both windows were read before.
    const auto isListedIn = [this](const char *name) {
        const auto &groups = m_catalogue->groups();
        const auto group = std::find_if(groups.begin(), groups.end(), [name](const auto &known) {
            return text(known->GetName()) == QLatin1String(name);
        });
        return group != groups.end()
            && std::count((*group)->items.begin(), (*group)->items.end(), this->item("drawCircle")) == 1;
    };
    QVERIFY(isListedIn("Draw"));
    m_catalogue->setCurrentWindow(m_second.get());
    QVERIFY(isListedIn("Help"));
    m_catalogue->setCurrentWindow(m_first.get());
    QVERIFY(isListedIn("Draw"));
}

void CommandWindowsTest::aRemovedWindowIsWatchedNoLonger()
{
    const QPointer<gesturewidget::MenuChanges> watcher = &m_catalogue->watcherOf(m_second.get());
    m_catalogue->removeWindow(m_second.get());
    QVERIFY(watcher); // somebody may be inside one of its signals
    QCoreApplication::processEvents();
    QVERIFY(!watcher);
}

void CommandWindowsTest::aWindowIsAddedOnce()
{
    m_catalogue->addWindow(m_second.get());
    m_catalogue->removeWindow(m_second.get());
    m_catalogue->setCurrentWindow(m_second.get());
    QCOMPARE(m_catalogue->currentWindow(), m_first.get());
}

void CommandWindowsTest::changesElsewhereAreSeenLater_data()
{
    QTest::addColumn<QString>("change");
    for (const char *change :
         {"renamed", "disabled", "hidden", "shown again", "removed", "added", "replaced", "destroyed"})
        QTest::newRow(change) << QString::fromLatin1(change);
}

void CommandWindowsTest::changesElsewhereAreSeenLater()
{
    QFETCH(QString, change);
    m_second->circle->setVisible(change != QLatin1String("shown again"));
    m_catalogue->setCurrentWindow(m_second.get());
    m_catalogue->update();
    m_catalogue->setCurrentWindow(m_first.get());
    m_catalogue->update();
    if (change == QLatin1String("renamed"))
        m_second->circle->setText(QStringLiteral("Round"));
    else if (change == QLatin1String("disabled"))
        m_second->circle->setEnabled(false);
    else if (change == QLatin1String("hidden"))
        m_second->circle->setVisible(false);
    else if (change == QLatin1String("shown again"))
        m_second->circle->setVisible(true);
    else if (change == QLatin1String("removed"))
        m_second->draw->removeAction(m_second->circle);
    else if (change == QLatin1String("added"))
        DraftWindow::addAction(m_second->draw, "Spiral", "drawSpiral");
    else
        delete m_second->circle;
    if (change == QLatin1String("replaced"))
        m_second->circle = DraftWindow::addAction(m_second->draw, "Other", "drawCircle");

    ActionItem *circle = item("drawCircle");
    QVERIFY(circle->isUsable());
    QCOMPARE(circle->action(), m_first->circle);
    QCOMPARE(text(circle->GetCaption()), QStringLiteral("Circle"));
    QCOMPARE(item("drawSpiral"), nullptr);

    m_catalogue->setCurrentWindow(m_second.get());
    m_catalogue->update();
    QCOMPARE(circle->isUsable(),
             change == QLatin1String("renamed") || change == QLatin1String("shown again")
                 || change == QLatin1String("added") || change == QLatin1String("replaced"));
    QCOMPARE(text(circle->GetCaption()), change == QLatin1String("renamed") ? QStringLiteral("Round")
                                         : change == QLatin1String("replaced")
                                             ? QStringLiteral("Other")
                                             : QStringLiteral("Circle"));
    QCOMPARE(item("drawSpiral") != nullptr, change == QLatin1String("added"));
}

// Nothing has changed in a window since it was current.
void CommandWindowsTest::aSwitchReadsNothingTwice()
{
    m_catalogue->update();
    m_catalogue->setCurrentWindow(m_second.get());
    m_catalogue->update();
    QSignalSpy menus(m_catalogue.get(), &CommandCatalogue::menusChanged);
    QSignalSpy prepared(m_catalogue.get(), &CommandCatalogue::prepared);
    QSignalSpy current(m_catalogue.get(), &CommandCatalogue::currentWindowChanged);
    m_catalogue->setCurrentWindow(m_first.get());
    m_catalogue->setCurrentWindow(m_first.get());
    QCOMPARE(current.count(), 1);
    QCOMPARE(menus.count(), 0);
    // Changes in another window are read some time after the switch to it. Nothing else is to be read.
    DraftWindow::addAction(m_first->draw, "Ellipse", "drawEllipse");
    QTRY_VERIFY(prepared.count() > 0);
    QCoreApplication::processEvents();
    prepared.clear();
    menus.clear();
    DraftWindow::addAction(m_second->draw, "Spiral", "drawSpiral");
    QTRY_VERIFY(menus.count() > 0);
    QCoreApplication::processEvents(); // all of the change is known before the switch
    m_catalogue->setCurrentWindow(m_second.get());
    QTRY_COMPARE(prepared.count(), 1);
    QVERIFY(item("drawSpiral"));
}

void CommandWindowsTest::aWindowThatGoesTakesItsActions()
{
    ActionItem *line = item("ID_LINE");
    m_catalogue->setCurrentWindow(m_second.get());
    m_catalogue->update();
    m_catalogue->setCurrentWindow(m_first.get());
    m_catalogue->removeWindow(m_second.get());
    const QAction *gone = m_second->line;
    m_second.reset();
    QCoreApplication::processEvents();
    QCOMPARE(m_catalogue->itemOf(gone), nullptr);
    m_catalogue->setCurrentWindow(m_second.get());
    QCOMPARE(line->action(), m_first->line);
    int addresses = 0;
    line->forEachAddress([&addresses](const QAction *) { ++addresses; });
    QCOMPARE(addresses, 1);
    m_first->line->setText(QStringLiteral("Still heard"));
    m_catalogue->update();
    QCOMPARE(text(line->GetCaption()), QStringLiteral("Still heard"));
}

void CommandWindowsTest::anActionMayBeInTwoWindows()
{
    QAction shared(QStringLiteral("Shared"));
    shared.setObjectName(QStringLiteral("shared"));
    m_first->file->addAction(&shared);
    m_second->file->addAction(&shared);
    ActionItem *command = item("shared");
    QCOMPARE(command->action(), &shared);
    m_catalogue->setCurrentWindow(m_second.get());
    m_catalogue->update();
    QCOMPARE(item("shared"), command);
    QCOMPARE(command->action(), &shared);
    m_catalogue->removeWindow(m_first.get());
    m_first.reset();
    QCOMPARE(m_catalogue->itemOf(&shared), command);
    shared.setText(QStringLiteral("Common"));
    m_catalogue->update();
    QCOMPARE(text(command->GetCaption()), QStringLiteral("Common"));
}

void CommandWindowsTest::anUnknownWindowChangesNothing()
{
    QMainWindow other;
    QSignalSpy current(m_catalogue.get(), &CommandCatalogue::currentWindowChanged);
    m_catalogue->setCurrentWindow(&other);
    m_catalogue->setCurrentWindow(nullptr);
    m_catalogue->removeWindow(&other);
    QCOMPARE(current.count(), 0);
    QCOMPARE(m_catalogue->currentWindow(), m_first.get());
    QCOMPARE(item("ID_LINE")->action(), m_first->line);
}

// The host has stopped when the last window goes, but its objects are still there.
void CommandWindowsTest::theCurrentWindowIsNotRemoved()
{
    m_catalogue->removeWindow(m_second.get());
    ActionItem *line = item("ID_LINE");
    m_first.reset();
    m_catalogue->removeWindow(m_first.get());
    QVERIFY(!line->action());
    QCOMPARE(text(line->GetCaption()), QStringLiteral("Line"));
    m_catalogue->update();
    QVERIFY(!line->isUsable());
}

void CommandWindowsTest::windowsLeaveNothingBehind()
{
    m_catalogue->update();
    const std::size_t items = m_catalogue->items().size();
    for (int i = 0; i < 200; ++i) {
        DraftWindow another;
        m_catalogue->addWindow(&another);
        m_catalogue->setCurrentWindow(&another);
        QCOMPARE(item("ID_LINE")->action(), another.line);
        m_catalogue->setCurrentWindow(m_first.get());
        m_catalogue->removeWindow(&another);
    }
    QCoreApplication::processEvents();
    QCOMPARE(m_catalogue->items().size(), items);
    for (const auto &each : m_catalogue->items()) {
        int addresses = 0;
        each->forEachAddress([&addresses](const QAction *) { ++addresses; });
        QCOMPARE(addresses, 1);
    }
}

// A switch comes with a press, before the ring.
void CommandWindowsTest::aSwitchCostsLittle()
{
    for (DraftWindow *window : {m_first.get(), m_second.get()}) {
        for (int i = 0; i < 1000; ++i)
            DraftWindow::addAction(window->draw, "Command", qPrintable(QStringLiteral("c%1").arg(i)));
        m_catalogue->setCurrentWindow(window);
        m_catalogue->update();
    }
    // The process's own time, so other programs do not count.
    std::clock_t best = std::numeric_limits<std::clock_t>::max();
    for (int i = 0; i < 20; ++i) {
        const std::clock_t begin = std::clock();
        m_catalogue->setCurrentWindow(i % 2 ? m_second.get() : m_first.get());
        m_catalogue->update();
        best = std::min(best, std::clock() - begin);
    }
    const double milliseconds = 1e3 * static_cast<double>(best) / CLOCKS_PER_SEC;
    qInfo("a switch with 1000 commands: %.2f ms", milliseconds);
    QVERIFY(milliseconds < 50); // far more than unoptimised with sanitizers
}

QTEST_MAIN(CommandWindowsTest)
#include "tst_commandwindows.moc"
