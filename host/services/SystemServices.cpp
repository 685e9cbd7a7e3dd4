// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/services/SystemServices.h"

#include "host/commands/CatalogueMemory.h"
#include "host/commands/CommandCatalogue.h"
#include "host/commands/CommandLineWatcher.h"
#include "host/commands/CommandRunner.h"
#include "host/commands/CommandStack.h"
#include "host/commands/ExpectedCommands.h"
#include "host/files/InstallPaths.h"
#include "host/files/ProgramProfile.h"
#include "host/menus/CommandManager.h"
#include "host/menus/UiManager.h"
#include "host/services/ButtonImages.h"
#include "host/services/CurrentTask.h"
#include "host/services/HostEditor.h"
#include "host/services/MessageBox.h"
#include "host/services/ProfileStore.h"
#include "host/services/TaskRings.h"
#include "host/window/MainWindows.h"
#include "host/window/TextOutput.h"

#include <QApplication>
#include <QMainWindow>
#include <QTimer>

namespace gesturewidget {
namespace {

// Pixels. Icons of this height and more are large: most programs have icons of 16 to 25 pixels.
constexpr int kLargeIcon = 32;
// Milliseconds without a change until the menus of a task are complete.
constexpr int kTimeForTask = 1000;

} // namespace

class SystemServices::Private
{
public:
    Private(QMainWindow *mainWindow, const ProgramProfile &profile, CHxDocumentManager *documentManager,
            const QString &settingsFile, const HelpGuide &helpGuide)
        : windows(mainWindow)
        , documents(documentManager)
        , textOutput(mainWindow)
        , profileStore(settingsFile)
        , knowsTasks(profile.knowsTasks())
        , catalogue(mainWindow, profile.wellKnownCommands)
        , task(profile, catalogue, documentManager)
        , rings(profileStore, [this] { return task.name(); })
        , runner(stack, catalogue, textOutput, documentManager, &windows)
        , uiManager(
              catalogue, profile.toolsMenu,
              [this](const QString &macro, QWidget *window) { runIn(window, macro); }, mainWindow)
        , commandManager(catalogue, uiManager)
        , commandLine(profile.commandLineClass, stack,
                      [this](const QString &name) { runner.runStackCommand(name); })
        , guide(helpGuide)
    {
        connectWindows();
        if (mainWindow) // without a program, nothing can be expected
            expectCommands(profile, settingsFile);
    }

    void connectWindows()
    {
        QObject::connect(&windows, &MainWindows::added, &windows, [this](QMainWindow *window) {
            catalogue.addWindow(window);
            uiManager.addWindow(window);
        });
        QObject::connect(&windows, &MainWindows::currentChanged, &windows, [this] {
            textOutput.setWindow(windows.current());
            catalogue.setCurrentWindow(windows.current());
            uiManager.setCurrentWindow(windows.current());
        });
        QObject::connect(&windows, &MainWindows::removed, &windows, [this](const QWidget *window) {
            uiManager.removeWindow(window);
            catalogue.removeWindow(window);
        });
        if (knowsTasks) {
            QObject::connect(&windows, &MainWindows::holdBegins, &windows, [this] { holdRing(); });
            QObject::connect(&windows, &MainWindows::holdEnds, &windows, [this] { releaseRing(); });
        }
    }

    void expectCommands(const ProgramProfile &profile, const QString &settingsFile)
    {
        memory = std::make_unique<CatalogueMemory>(catalogue, catalogueFileBeside(settingsFile));
        wellKnown = profile.wellKnownCommands;
        expectBound({});
        if (profile.changesMenus)
            catalogue.trustAll();
        if (!profile.taskPrefixes.isEmpty())
            dropMistyped(profile.taskPrefixes);
        QObject::connect(
            &catalogue, &CommandCatalogue::dropped, &catalogue, [this](const QStringList &identifiers) {
                textOutput.showForAWhile(
                    QCoreApplication::translate(
                        "host", "The program has no command \"%1\"; its direction is empty.")
                        .arg(identifiers.join(QStringLiteral("\", \""))));
            });
    }

    // `learn` gets those that were not expected yet, and does what must be done before they are.
    void expectBound(const std::function<void(const QStringList &)> &learn)
    {
        const SettingsFile::Values settings = profileStore.site().chosenOf(profileStore.values());
        revision = profileStore.revision();
        const QMap<QString, QString> expected = expectedCommands(wellKnown, settings);
        QStringList added;
        for (auto it = expected.begin(); it != expected.end(); ++it) {
            if (!catalogue.isExpected(it.key()))
                added.append(it.key());
        }
        if (learn && !added.isEmpty())
            learn(added);
        for (const QString &identifier : std::as_const(added))
            catalogue.expect(identifier, expected.value(identifier));
        catalogue.trust(trustedCommands(settings, profileStore.site().given()));
        if (catalogue.hasEndedGuessing() && !added.isEmpty())
            catalogue.endGuessing();
    }

    // Somebody may have bound more commands while the program runs, or imported a file. A direction
    // loses a command that is not offered.
    void expectNewlyBound()
    {
        if (!memory || profileStore.revision() == revision)
            return;
        expectBound([this](const QStringList &added) { catalogue.trust(memory->recall(added)); });
    }

    // A task's menus are complete some time after the last change that follows a switch.
    void dropMistyped(const QHash<QString, QString> &prefixes)
    {
        menusOfTask.setSingleShot(true);
        menusOfTask.setInterval(kTimeForTask);
        const auto restart = qOverload<>(&QTimer::start);
        QObject::connect(memory.get(), &CatalogueMemory::settled, &menusOfTask, restart);
        QObject::connect(&catalogue, &CommandCatalogue::menusChanged, &menusOfTask, &QTimer::stop);
        QObject::connect(&menusOfTask, &QTimer::timeout, &menusOfTask, [this, prefixes] {
            const QString prefix = prefixes.value(task.name());
            if (!prefix.isEmpty())
                catalogue.dropUnseen(prefix);
        });
    }

    void runIn(QWidget *window, const QString &macro)
    {
        windows.makeCurrent(window);
        runner.run(macro, false);
    }

    // A dialog edits the ring over which it was opened, and says which one that is.
    void holdRing()
    {
        task.hold();
        const QString text =
            rings.ring().isEmpty()
                ? QCoreApplication::translate("host", "This is the ring of all tasks.")
                : QCoreApplication::translate("host", "This is the ring of %1.").arg(task.caption());
        textOutput.SetText(text, false);
    }
    void releaseRing()
    {
        task.release();
        textOutput.SetText(QString(), false);
    }

    MainWindows windows;
    CHxDocumentManager *documents;
    CHxApplication *application = nullptr;
    CHxMainFrame *mainFrame = nullptr;
    CommandStack stack;
    HostEditor editor;
    TextOutput textOutput;
    ProfileStore profileStore;
    bool knowsTasks;
    CommandCatalogue catalogue;
    CurrentTask task;
    TaskRings rings;
    std::unique_ptr<CatalogueMemory> memory; // null without a window
    QHash<QString, QStringList> wellKnown; // see ProgramProfile
    int revision = 0; // of the settings whose bound commands are expected
    QTimer menusOfTask; // until the menus of a task are complete
    CommandRunner runner;
    UiManager uiManager;
    CommandManager commandManager;
    CommandLineWatcher commandLine;
    HelpGuide guide;
};

SystemServices::SystemServices(QMainWindow *window, const ProgramProfile &profile,
                               CHxDocumentManager *documents, const QString &settingsFile,
                               const HelpGuide &guide)
    : m_d(std::make_unique<Private>(window, profile, documents, settingsFile, guide))
{
    provideButtonImages();
}

SystemServices::~SystemServices() = default;

MainWindows &SystemServices::windows()
{
    return m_d->windows;
}

CommandStack &SystemServices::commandStack()
{
    return m_d->stack;
}

HostEditor &SystemServices::editor()
{
    return m_d->editor;
}

CommandCatalogue &SystemServices::catalogue()
{
    return m_d->catalogue;
}

void SystemServices::startRemembering()
{
    if (m_d->memory)
        m_d->memory->start();
}

void SystemServices::stopRemembering()
{
    if (m_d->memory)
        m_d->memory->stop();
}

void SystemServices::showForAWhile(const QString &text)
{
    m_d->textOutput.showForAWhile(text);
}

const ToolsMenu &SystemServices::toolsMenu() const
{
    return m_d->uiManager.toolsMenu();
}

void SystemServices::setApplication(CHxApplication *application)
{
    m_d->application = application;
}

void SystemServices::setMainFrame(CHxMainFrame *mainFrame)
{
    m_d->mainFrame = mainFrame;
}

CHxMainFrame *SystemServices::GetMainFrame()
{
    return m_d->mainFrame;
}

CHxDocumentManager *SystemServices::GetDocumentManager()
{
    return m_d->documents;
}

CHxApplication *SystemServices::GetApplication()
{
    return m_d->application;
}

CHxTextOutput *SystemServices::GetTextOutput()
{
    return &m_d->textOutput;
}

CHxProfileStore *SystemServices::GetProfileStore()
{
    return &m_d->rings;
}

CHxUIManager *SystemServices::GetUIManager()
{
    return &m_d->uiManager;
}

CHxUICommandManager *SystemServices::GetUICommandManager()
{
    // A module that walks all commands reads its settings next, some fifty values.
    m_d->rings.beginReading();
    m_d->expectNewlyBound();
    return &m_d->commandManager;
}

CHxUIMenuItemCollection *SystemServices::GetMenuItems()
{
    return &m_d->uiManager.menuBars();
}

CHxCommandResultPtr SystemServices::RunCommand(const CHxString &command, bool wait)
{
    return m_d->runner.run(command.toQString(), wait);
}

void SystemServices::dropWaitingCommands()
{
    m_d->runner.dropWaiting();
}

bool SystemServices::UsesLargeIcons() const
{
    const auto *window = qobject_cast<const QMainWindow *>(m_d->windows.current());
    return window && window->iconSize().height() >= kLargeIcon;
}

CHxString SystemServices::GetApplicationName() const
{
    return QCoreApplication::applicationName(); // that of its file if it has set none
}

int SystemServices::ShowMessage(const CHxString &text, const CHxString &caption, int style)
{
    QWidget *dialog = QApplication::activeModalWidget();
    return showMessage(dialog ? dialog : m_d->windows.current(), text.toQString(), caption.toQString(),
                       style);
}

CHxString SystemServices::GetMessageCaption() const
{
    const QString name = QGuiApplication::applicationDisplayName();
    return name.isEmpty() ? GetApplicationName() : CHxString(name);
}

void SystemServices::ShowHelp(int topic)
{
    if (!m_d->guide.open(topic))
        m_d->textOutput.showForAWhile(
            QCoreApplication::translate("host", "The guide to mouse gestures cannot be opened."));
}

} // namespace gesturewidget
