// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "settings/window/SettingsWindow.h"

#include "host/files/InstallPaths.h"
#include "launcher/Folders.h"
#include "launcher/programs/ProgramCheck.h"
#include "launcher/programs/Subject.h"
#include "settings/editing/BindingsEditor.h"
#include "settings/exchange/Exchange.h"
#include "settings/programs/ProgramPanel.h"
#include "settings/window/MessageBar.h"
#include "settings/window/ProgramPage.h"

#include <QAction>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLocale>
#include <QMenuBar>
#include <QProcess>
#include <QScreen>
#include <QSplitter>
#include <QStackedWidget>
#include <QToolBar>
#include <QVBoxLayout>

#include <unistd.h>

namespace settings {
namespace {

// In heights of a line of text.
constexpr QSize kSize(75, 48);
constexpr int kProgramsWidth = 17;
// The most that a window's frame takes, in pixels.
constexpr QSize kFrame(16, 48);
constexpr int kInstallationSettle = 300; // milliseconds; an installation writes many entries

launcher::DesktopMenu::Places placesOfMenus()
{
    const launcher::Environment environment = launcher::readEnvironment(::environ);
    return launcher::DesktopMenu::usualPlaces(environment.value("PATH", launcher::kDefaultSearchPath),
                                              launcher::launcherPath());
}

} // namespace

SettingsWindow::SettingsWindow()
    : m_places(placesOfMenus())
    , m_model(m_places)
{
    setObjectName(QStringLiteral("settings_window"));
    setWindowTitle(tr("Mouse Gestures"));
    m_exchange = new Exchange(this);
    m_programs = new ProgramPanel(&m_model, this);
    m_page = new ProgramPage(this);
    m_message = new MessageBar(this);
    m_empty = new QLabel(tr("Looking for programs..."), this);
    m_empty->setAlignment(Qt::AlignCenter);
    m_pages = new QStackedWidget(this);
    m_pages->addWidget(m_empty);
    m_pages->addWidget(m_page);

    auto *right = new QWidget(this);
    auto *rightLayout = new QVBoxLayout(right);
    rightLayout->setContentsMargins(0, 0, 0, 0);
    rightLayout->addWidget(m_message);
    rightLayout->addWidget(m_pages, 1);
    auto *splitter = new QSplitter(this);
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(m_programs);
    splitter->addWidget(right);
    const int line = fontMetrics().height();
    splitter->setSizes({kProgramsWidth * line, (kSize.width() - kProgramsWidth) * line});
    splitter->setStretchFactor(1, 1);
    setCentralWidget(splitter);
    createActions();
    resize((kSize * line).boundedTo(screen()->availableSize() - kFrame));

    connect(m_programs, &ProgramPanel::chosen, this, &SettingsWindow::choose);
    connect(&m_model, &ProgramModel::failed, m_message, &MessageBar::complain);
    connect(&m_model, &ProgramModel::switched, this, [this](int row) {
        if (m_model.rowOf(m_chosen) == row)
            m_page->setOn(m_model.isOn(row));
    });
    connect(m_page, &ProgramPage::switchWanted, this, [this](bool isOn) {
        const int row = m_model.rowOf(m_chosen);
        if (row >= 0)
            m_model.setOn(row, isOn);
        m_page->setOn(row >= 0 && m_model.isOn(row)); // also when it stayed as it was
    });
    connect(m_exchange, &Exchange::failed, m_message, &MessageBar::complain);
    connect(m_exchange, &Exchange::done, m_message, &MessageBar::tell);
    connect(&m_finder, &ProgramFinder::found, this,
            [this](const launcher::MenuProgram &program) { m_model.add(program); });
    connect(&m_finder, &ProgramFinder::progressed, m_programs, &ProgramPanel::showProgress);
    connect(&m_finder, &ProgramFinder::finished, this, &SettingsWindow::endSearch);

    m_searchAgain.setSingleShot(true);
    m_searchAgain.setInterval(kInstallationSettle);
    connect(&m_searchAgain, &QTimer::timeout, this, &SettingsWindow::search);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, [this](const QString &folder) {
        // The own folder changes with each switch, here or in another window.
        if (folder == m_places.own)
            m_model.updateSwitches();
        m_searchAgain.start();
    });
}

SettingsWindow::~SettingsWindow()
{
    m_page->showProgram(nullptr, {}, false);
}

void SettingsWindow::createActions()
{
    auto *bar = new QToolBar(tr("Main toolbar"), this);
    bar->setObjectName(QStringLiteral("main_toolbar"));
    bar->setMovable(false);
    bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    addToolBar(bar);

    const auto add = [this](QMenu &menu, const QString &text, const char *icon, const QKeySequence &keys,
                            const std::function<void()> &run) {
        QAction *action = menu.addAction(QIcon::fromTheme(QLatin1String(icon)), text);
        action->setShortcut(keys);
        connect(action, &QAction::triggered, this, run);
        return action;
    };
    const auto ofProgram = [this](QAction *action) {
        m_ofProgram.append(action);
        action->setEnabled(false);
        return action;
    };
    QMenu &file = *menuBar()->addMenu(tr("&File"));
    QAction *start =
        ofProgram(add(file, tr("&Start the Program"), "system-run", {}, [this] { startProgram(); }));
    file.addSeparator();
    QAction *import = ofProgram(add(file, tr("&Import..."), "document-open", QKeySequence::Open,
                                    [this] { m_exchange->importBindings(*m_editor); }));
    QAction *exporting = ofProgram(add(file, tr("&Export..."), "document-save-as", QKeySequence::SaveAs,
                                       [this] { m_exchange->exportBindings(*m_editor); }));
    QAction *print = ofProgram(add(file, tr("&Print..."), "document-print", QKeySequence::Print,
                                   [this] { m_exchange->print(*m_editor); }));
    file.addSeparator();
    add(file, tr("&Quit"), "application-exit", QKeySequence::Quit, [this] { close(); });

    QMenu &edit = *menuBar()->addMenu(tr("&Edit"));
    QAction *undo = m_undo.createUndoAction(this, tr("&Undo"));
    undo->setObjectName(QStringLiteral("undo"));
    undo->setIcon(QIcon::fromTheme(QStringLiteral("edit-undo")));
    undo->setIconText(tr("Undo"));
    undo->setShortcut(QKeySequence::Undo);
    QAction *redo = m_undo.createRedoAction(this, tr("&Redo"));
    redo->setObjectName(QStringLiteral("redo"));
    redo->setIcon(QIcon::fromTheme(QStringLiteral("edit-redo")));
    redo->setIconText(tr("Redo"));
    // Both of the shortcuts that people know, on every desktop.
    redo->setShortcuts({QKeySequence(int(Qt::CTRL) + int(Qt::SHIFT) + int(Qt::Key_Z)),
                        QKeySequence(int(Qt::CTRL) + int(Qt::Key_Y))});
    edit.addActions({undo, redo});
    edit.addSeparator();
    ofProgram(add(edit, tr("&Find a Command"), "edit-find", QKeySequence::Find,
                  [this] { m_page->focusSearch(); }));
    edit.addSeparator();
    QAction *reset = ofProgram(add(edit, tr("Reset to &First Commands..."), "edit-clear-all", {},
                                   [this] { m_exchange->reset(*m_editor); }));
    reset->setIconText(tr("Reset..."));
    bar->addActions({undo, redo});
    bar->addSeparator();
    bar->addActions({import, exporting, print, reset});
    bar->addSeparator();
    bar->addAction(start);
}

void SettingsWindow::paintEvent(QPaintEvent *event)
{
    QMainWindow::paintEvent(event);
    // The window appears first, then it looks around. The icons of the programs alone take a tenth of
    // the time until then.
    if (!m_wasPainted)
        QTimer::singleShot(0, this, &SettingsWindow::search);
    m_wasPainted = true;
}

void SettingsWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    // The person may have done something elsewhere: installed a package, ended a compositor.
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        m_page->examine();
}

void SettingsWindow::search()
{
    QStringList folders = QStringList(m_places.own) + m_places.installed;
    for (QString folder : std::as_const(folders)) {
        folder = launcher::nearestFolder(folder);
        if (!m_watcher.directories().contains(folder))
            m_watcher.addPath(folder);
    }
    const launcher::Environment environment = launcher::readEnvironment(::environ);
    const QStringList profiles =
        gesturewidget::profileFolders(QDir(QFile::decodeName(launcher::launcherFolder())));
    m_model.beginSearch();
    m_finder.start(launcher::MenuPrograms(m_places, environment, profiles, QLocale().name()));
}

void SettingsWindow::bringToFront()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void SettingsWindow::endSearch()
{
    m_model.endSearch();
    m_model.updateSwitches();
    m_programs->hideProgress();
    m_empty->setText(tr("No program"));
    offerFirst();
    // A chosen program that is gone stays on its page, with what stands in the way.
    m_page->examine();
}

// Until somebody chooses, a program is shown that starts with gestures, or else one that a profile
// describes, or else the first.
void SettingsWindow::offerFirst()
{
    if (m_editor || m_model.rowCount() == 0)
        return;
    int row = 0;
    int rank = 0;
    for (int i = 0; i < m_model.rowCount(); ++i) {
        const launcher::Subject subject = launcher::Subject::of(m_model.program(i).typed);
        const int own = m_model.isOn(i)                                                       ? 2
                      : launcher::profileFile(subject.name, subject.profileFolders).isEmpty() ? 0
                                                                                              : 1;
        if (own > rank) {
            row = i;
            rank = own;
        }
    }
    m_programs->choose(row);
}

void SettingsWindow::choose(int row)
{
    m_message->hide(); // it was about another program
    m_chosen = m_model.program(row);
    m_editor = editorOf(m_chosen);
    if (!m_editor->notice().isEmpty())
        m_message->complain(m_editor->notice());
    m_undo.setActiveStack(m_editor->undoStack());
    m_page->showProgram(m_editor, m_model.index(row).data(Qt::DecorationRole).value<QIcon>(),
                        m_model.isOn(row));
    m_pages->setCurrentWidget(m_page);
    for (QAction *action : std::as_const(m_ofProgram))
        action->setEnabled(true);
}

BindingsEditor *SettingsWindow::editorOf(const launcher::MenuProgram &program)
{
    BindingsEditor *&editor = m_editors[program.typed];
    if (!editor) {
        editor = new BindingsEditor(launcher::Subject::of(program.typed), program.name, this);
        // A message is about the state before. A complaint about this change comes later.
        connect(editor, &BindingsEditor::bindingsChanged, m_message, &QWidget::hide);
        connect(editor, &BindingsEditor::failed, m_message, &MessageBar::complain);
        connect(editor, &BindingsEditor::noticed, m_message, &MessageBar::complain);
        m_undo.addStack(editor->undoStack());
    }
    return editor;
}

void SettingsWindow::startProgram()
{
    const QString launcher = QFile::decodeName(launcher::launcherPath());
    if (!QProcess::startDetached(launcher, {QFile::decodeName(m_chosen.typed)}))
        m_message->complain(tr("%1 could not be started.").arg(m_chosen.name));
}

} // namespace settings
