// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "examples/sketchpad/MainWindow.h"

#include "examples/sketchpad/Canvas.h"
#include "examples/sketchpad/CommandLine.h"
#include "examples/sketchpad/DxfFile.h"
#include "examples/sketchpad/Icons.h"

#include <gesturewidget/sdk/od/OdEdCommand.h>
#include <gesturewidget/sdk/od/OdEdCommandStack.h>

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>

#include <numeric>

namespace {

// Lines such as "2 x ELLIPSE". A list of more than ten is cut.
QString listed(const QMap<QString, int> &unread)
{
    QStringList lines;
    for (auto kind = unread.begin(); kind != unread.end(); ++kind)
        lines += QStringLiteral("%1 \u00d7 %2").arg(kind.value()).arg(kind.key());
    if (lines.size() > 10)
        lines = lines.mid(0, 10) + QStringList{QStringLiteral("\u2026")};
    return lines.join(QLatin1Char('\n'));
}

} // namespace

// The commands. Each entry gives the action, its place in the menus and tool bars, and the
// words that a person can type for it.
struct MainWindow::Command
{
    const char *name; // object name; it starts with the menu's name in small letters
    const char *caption;
    const char *tip;
    const char *typed; // words, separated by blanks
    const char *keys;
    void (*run)(MainWindow &);
};

const MainWindow::Command
    MainWindow::
        kCommands
            [] =
                {
                    {"fileNew", QT_TR_NOOP("&New"), QT_TR_NOOP("Starts an empty drawing"), "NEW",
                     "Ctrl+N", [](MainWindow &w) { w.fileNew(); }},
                    {"fileNewWindow", QT_TR_NOOP("New &Window"),
                     QT_TR_NOOP("Starts an empty drawing in a window of its own"), "NEWWINDOW",
                     "Ctrl+Shift+N", [](MainWindow &w) { Q_EMIT w.newWindowWanted(); }},
                    {"fileOpen", QT_TR_NOOP("&Open..."), QT_TR_NOOP("Opens a drawing"), "OPEN", "Ctrl+O",
                     [](MainWindow &w) { w.fileOpen(); }},
                    {"fileSave", QT_TR_NOOP("&Save"), QT_TR_NOOP("Saves the drawing"), "SAVE QSAVE",
                     "Ctrl+S", [](MainWindow &w) { w.fileSave(); }},
                    {"fileSaveAs", QT_TR_NOOP("Save &As..."),
                     QT_TR_NOOP("Saves the drawing under another name"), "SAVEAS", "Ctrl+Shift+S",
                     [](MainWindow &w) { w.fileSaveAs(); }},
                    {"fileClose", QT_TR_NOOP("&Close Window"), QT_TR_NOOP("Closes this window"), "CLOSE",
                     "Ctrl+W", [](MainWindow &w) { w.close(); }},
                    {"fileQuit", QT_TR_NOOP("&Quit"), QT_TR_NOOP("Closes all windows"), "QUIT EXIT",
                     "Ctrl+Q", [](MainWindow &) { QApplication::closeAllWindows(); }},
                    {"editUndo", QT_TR_NOOP("&Undo"), QT_TR_NOOP("Undoes the last change"), "UNDO U",
                     "Ctrl+Z", [](MainWindow &w) { w.m_drawing.undo(); }},
                    {"editRedo", QT_TR_NOOP("&Redo"), QT_TR_NOOP("Repeats the change that was undone"),
                     "REDO", "Ctrl+Shift+Z", [](MainWindow &w) { w.m_drawing.redo(); }},
                    {"editErase", QT_TR_NOOP("&Erase"), QT_TR_NOOP("Erases what is selected"), "ERASE E",
                     "Del", [](MainWindow &w) { w.editErase(); }},
                    {"editSelectAll", QT_TR_NOOP("Select &All"),
                     QT_TR_NOOP("Selects everything that is visible"), "ALL", "Ctrl+A",
                     [](MainWindow &w) { w.editSelectAll(); }},
                    {"viewZoomBounds", QT_TR_NOOP("Zoom to &Bounds"),
                     QT_TR_NOOP("Shows the whole drawing"), "ZOOM Z", "Home",
                     [](MainWindow &w) { w.m_canvas->zoomToBounds(); }},
                    {"viewZoomIn", QT_TR_NOOP("Zoom &In"), QT_TR_NOOP("Makes the drawing look larger"),
                     "ZOOMIN", "Ctrl++",
                     [](MainWindow &w) { w.m_canvas->zoom(1.5, w.m_canvas->rect().center()); }},
                    {"viewZoomOut", QT_TR_NOOP("Zoom &Out"),
                     QT_TR_NOOP("Makes the drawing look smaller"), "ZOOMOUT", "Ctrl+-",
                     [](MainWindow &w) { w.m_canvas->zoom(1 / 1.5, w.m_canvas->rect().center()); }},
                    {"viewGrid", QT_TR_NOOP("&Grid"), QT_TR_NOOP("Shows or hides the grid"), "GRID",
                     "F7",
                     [](MainWindow &w) {
                         w.m_canvas->setGridShown(
                             w.findChild<QAction *>(QStringLiteral("viewGrid"))->isChecked());
                     }},
                    {"viewFullScreen", QT_TR_NOOP("&Full Screen"), QT_TR_NOOP("Shows only the drawing"),
                     "FULLSCREEN", "F11",
                     [](MainWindow &w) {
                         w.setFullScreen(
                             w.findChild<QAction *>(QStringLiteral("viewFullScreen"))->isChecked());
                     }},
                    {"drawLine", QT_TR_NOOP("&Line"), QT_TR_NOOP("Draws lines from point to point"),
                     "LINE L", "", [](MainWindow &w) { w.m_canvas->begin(Tool::Kind::Line); }},
                    {"drawCircle", QT_TR_NOOP("&Circle"), QT_TR_NOOP("Draws a circle around a centre"),
                     "CIRCLE C", "", [](MainWindow &w) { w.m_canvas->begin(Tool::Kind::Circle); }},
                    {"drawText", QT_TR_NOOP("&Text"), QT_TR_NOOP("Writes a line of text"),
                     "TEXT DTEXT T", "", [](MainWindow &w) { w.m_canvas->begin(Tool::Kind::Text); }},
                    {"modifyOffset", QT_TR_NOOP("&Offset"), QT_TR_NOOP("Draws a parallel curve"),
                     "OFFSET O", "", [](MainWindow &w) { w.m_canvas->begin(Tool::Kind::Offset); }},
                    {"modifyCopy", QT_TR_NOOP("&Copy"), QT_TR_NOOP("Copies to another place"),
                     "COPY CO CP", "", [](MainWindow &w) { w.m_canvas->begin(Tool::Kind::Copy); }},
                    {"modifyTrim", QT_TR_NOOP("&Trim"), QT_TR_NOOP("Cuts a curve where others cross it"),
                     "TRIM TR", "", [](MainWindow &w) { w.m_canvas->begin(Tool::Kind::Trim); }},
                    {"toolsSnap", QT_TR_NOOP("&Snap to Points"),
                     QT_TR_NOOP("Snaps the pointer to ends and centres"), "SNAP", "F3",
                     [](MainWindow &w) {
                         w.m_canvas->setSnapping(
                             w.findChild<QAction *>(QStringLiteral("toolsSnap"))->isChecked());
                     }},
                    {"toolsStop", QT_TR_NOOP("S&top the Command"),
                     QT_TR_NOOP("Ends the running command"), "STOP", "Esc",
                     [](MainWindow &w) { w.m_canvas->begin(Tool::Kind::Select); }},
                    {"helpAbout", QT_TR_NOOP("&About Sketchpad"), QT_TR_NOOP("Describes this program"),
                     "ABOUT", "F1", [](MainWindow &w) { w.helpAbout(); }},
};

MainWindow::MainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_canvas(new Canvas(m_drawing, this))
    , m_commandLine(new CommandLine(this))
    , m_coordinates(new QLabel(this))
{
    setObjectName(QStringLiteral("mainWindow"));
    setWindowIcon(icons::named(objectName()));
    buildCommands();
    buildPanels();
    connect(&m_drawing, &Drawing::changed, this, &MainWindow::showState);
    connect(m_canvas, &Canvas::toolChanged, this, &MainWindow::showState);
    connect(m_canvas, &Canvas::hint, this,
            [this](const QString &text) { statusBar()->showMessage(text, 5000); });
    connect(m_canvas, &Canvas::cursorMoved, this, [this](const QPointF &point) {
        m_coordinates->setText(
            QStringLiteral("%1, %2").arg(point.x(), 0, 'f', 2).arg(point.y(), 0, 'f', 2));
    });
    connect(m_canvas, &QWidget::customContextMenuRequested, this, &MainWindow::showContextMenu);
    connect(m_canvas, &Canvas::keyPressed, m_commandLine, &CommandLine::takeKey);
    connect(m_commandLine, &CommandLine::entered, this, &MainWindow::run);
    connect(m_commandLine, &CommandLine::textChanged, m_canvas, &Canvas::setTyped);
    resize(1200, 800);
    showState();
}

void MainWindow::buildCommands()
{
    QMenu *menu = nullptr;
    QToolBar *bar = nullptr;
    for (const Command &command : kCommands) {
        const QString name = QLatin1String(command.name);
        const bool isAboutFiles =
            name == QLatin1String("fileOpen") || name.startsWith(QLatin1String("fileSave"));
        if (isAboutFiles && !dxf::isSupported())
            continue;
        QString place = name;
        place.truncate(int(std::find_if(name.begin(), name.end(), [](QChar c) { return c.isUpper(); })
                           - name.begin()));
        if (!menu || menu->objectName() != place + QLatin1String("Menu")) {
            const QString caption = place.at(0).toUpper() + place.mid(1);
            menu = menuBar()->addMenu(QLatin1Char('&') + caption);
            menu->setObjectName(place + QLatin1String("Menu"));
            const bool drafts = place == QLatin1String("draw") || place == QLatin1String("modify");
            bar = new QToolBar(caption, this);
            bar->setObjectName(place + QLatin1String("Bar"));
            addToolBar(drafts ? Qt::LeftToolBarArea : Qt::TopToolBarArea, bar);
            bar->setVisible(place != QLatin1String("help"));
        }
        auto *action = new QAction(icons::named(name), tr(command.caption), this);
        action->setObjectName(name);
        action->setStatusTip(tr(command.tip));
        action->setToolTip(tr(command.tip));
        action->setData(QString::fromLatin1(command.typed).split(QLatin1Char(' ')));
        action->setShortcut(QKeySequence(QString::fromLatin1(command.keys)));
        const bool isOnAtFirst = name == QLatin1String("viewGrid") || name == QLatin1String("toolsSnap");
        if (isOnAtFirst || name == QLatin1String("viewFullScreen")) {
            action->setCheckable(true);
            action->setChecked(isOnAtFirst);
        }
        connect(action, &QAction::triggered, this, [this, runIt = command.run] { runIt(*this); });
        menu->addAction(action);
        addAction(action); // so that its keys work while the menu bar is hidden
        if (!action->icon().isNull())
            bar->addAction(action);
    }
}

void MainWindow::buildPanels()
{
    auto *bar = new QToolBar(tr("Command line"), this);
    bar->setObjectName(QStringLiteral("commandBar"));
    bar->setMovable(false);
    bar->addWidget(m_commandLine);
    addToolBar(Qt::BottomToolBarArea, bar);
    setCentralWidget(m_canvas);
    m_canvas->setFocus();
    m_coordinates->setMinimumWidth(
        fontMetrics().horizontalAdvance(QStringLiteral("-00000.00, -00000.00")));
    m_coordinates->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    statusBar()->addPermanentWidget(m_coordinates);
}

void MainWindow::showState()
{
    m_commandLine->setPrompt(m_canvas->tool().prompt());
    findChild<QAction *>(QStringLiteral("editUndo"))->setEnabled(m_drawing.canUndo());
    findChild<QAction *>(QStringLiteral("editRedo"))->setEnabled(m_drawing.canRedo());
    const QString name = m_path.isEmpty() ? tr("New drawing") : QFileInfo(m_path).fileName();
    setWindowTitle(tr("%1[*] \u2013 Sketchpad").arg(name));
    setWindowModified(m_drawing.isModified());
}

void MainWindow::showContextMenu(const QPoint &position)
{
    QMenu menu(this);
    menu.setObjectName(QStringLiteral("contextMenu"));
    for (const char *name : {"toolsStop", "", "modifyCopy", "modifyOffset", "modifyTrim", "editErase",
                             "", "editUndo", "editRedo", "", "viewZoomBounds"}) {
        if (*name)
            menu.addAction(findChild<QAction *>(QLatin1String(name)));
        else
            menu.addSeparator();
    }
    menu.exec(m_canvas->mapToGlobal(position));
}

void MainWindow::run(const QString &typed)
{
    if (m_canvas->type(typed))
        return;
    QString word = typed.trimmed().toUpper();
    if (word.isEmpty())
        word = m_last;
    if (word.isEmpty())
        return;
    const QString plain = word.startsWith(QLatin1Char('_')) ? word.mid(1) : word;
    const auto actions = findChildren<QAction *>();
    for (QAction *action : actions) {
        if (action->data().toStringList().contains(plain)) {
            m_last = plain;
            action->trigger();
            return;
        }
    }
    // Modules add their commands to the platform's command stack.
    const OdEdCommandStackPtr stack = odedRegCmds();
    OdEdCommand *command = stack ? stack->lookupCommand(OdString(word)) : nullptr;
    if (command)
        command->execute(nullptr);
    else
        statusBar()->showMessage(tr("There is no command \u201c%1\u201d.").arg(typed.trimmed()), 5000);
}

bool MainWindow::openFile(const QString &path)
{
    QString error;
    auto sheet = dxf::read(path, &error);
    if (!sheet) {
        QMessageBox::warning(
            this, tr("Sketchpad"),
            tr("\u201c%1\u201d cannot be opened.\n\n%2").arg(QFileInfo(path).fileName(), error));
        return false;
    }
    m_path = path;
    m_canvas->begin(Tool::Kind::Select);
    m_drawing.setSheet(*sheet);
    m_canvas->zoomToBounds();
    QString report = tr("%n entities", nullptr, int(sheet->entities.size()));
    if (sheet->polylines)
        report += tr(", after splitting %1 polylines").arg(sheet->polylines);
    if (!sheet->unread.isEmpty())
        report += tr("; some entities could not be read, Save lists them");
    statusBar()->showMessage(report, 10000);
    return true;
}

bool MainWindow::saveFile(const QString &path)
{
    const QString name = QFileInfo(path).fileName();
    QString error;
    // Checks the file that is there now, which need not be the one that was opened.
    if (QFileInfo(path).size() > 0) {
        const auto there = dxf::read(path, &error);
        if (!there || !there->unread.isEmpty()) {
            QMessageBox::warning(
                this, tr("Sketchpad"),
                tr("\u201c%1\u201d contains data that Sketchpad cannot read and would lose:\n\n%2\n\n"
                   "It was not replaced. Use Save As to save under another name.")
                    .arg(name, there ? listed(there->unread) : error));
            return false;
        }
    }
    const auto &unread = m_drawing.sheet().unread;
    if (!unread.isEmpty()
        && QMessageBox::warning(
               this, tr("Sketchpad"),
               tr("\u201c%1\u201d will not contain what Sketchpad could not read:\n\n%2")
                   .arg(name, listed(unread)),
               QMessageBox::Save | QMessageBox::Cancel, QMessageBox::Cancel)
               != QMessageBox::Save)
        return false;
    if (!dxf::write(m_drawing.sheet(), path, &error)) {
        QMessageBox::warning(this, tr("Sketchpad"),
                             tr("\u201c%1\u201d cannot be saved.\n\n%2").arg(name, error));
        return false;
    }
    m_path = path;
    m_drawing.setSaved();
    statusBar()->showMessage(tr("Saved %1").arg(path), 5000);
    return true;
}

bool MainWindow::save()
{
    QString path = m_path;
    if (path.isEmpty())
        path =
            QFileDialog::getSaveFileName(this, tr("Save the drawing"), {}, tr("DXF drawings (*.dxf)"));
    return !path.isEmpty() && saveFile(path);
}

void MainWindow::fileSaveAs()
{
    const QString path =
        QFileDialog::getSaveFileName(this, tr("Save the drawing"), m_path, tr("DXF drawings (*.dxf)"));
    if (!path.isEmpty())
        saveFile(path);
}

bool MainWindow::mayLeave()
{
    if (!m_drawing.isModified())
        return true;
    QMessageBox box(QMessageBox::Question, tr("Sketchpad"), tr("The drawing has unsaved changes."),
                    QMessageBox::Discard | QMessageBox::Cancel, this);
    if (dxf::isSupported())
        box.setDefaultButton(box.addButton(QMessageBox::Save));
    const int answer = box.exec();
    return answer == QMessageBox::Discard || (answer == QMessageBox::Save && save());
}

void MainWindow::fileNew()
{
    if (!mayLeave())
        return;
    m_path.clear();
    m_canvas->begin(Tool::Kind::Select);
    m_drawing.setSheet({});
    m_canvas->zoomToBounds();
}

void MainWindow::fileOpen()
{
    if (!mayLeave())
        return;
    const QString path =
        QFileDialog::getOpenFileName(this, tr("Open a drawing"), QFileInfo(m_path).path(),
                                     tr("DXF drawings (*.dxf *.DXF);;All files (*)"));
    if (!path.isEmpty())
        openFile(path);
}

void MainWindow::setFullScreen(bool full)
{
    if (full) {
        m_hidden = {menuBar(), statusBar()};
        const auto bars = findChildren<QToolBar *>();
        for (QToolBar *bar : bars) {
            if (bar->isVisible())
                m_hidden.append(bar);
        }
    }
    for (QWidget *widget : qAsConst(m_hidden))
        widget->setVisible(!full);
    setWindowState(windowState().setFlag(Qt::WindowFullScreen, full));
}

void MainWindow::editErase()
{
    m_drawing.change(m_canvas->selection(), {});
}

void MainWindow::editSelectAll()
{
    std::vector<std::size_t> all;
    for (std::size_t i = 0; i < m_drawing.entities().size(); ++i) {
        if (m_drawing.isVisible(m_drawing.entities()[i]))
            all.push_back(i);
    }
    m_canvas->select(all);
}

void MainWindow::helpAbout()
{
    QMessageBox::about(this, tr("About Sketchpad"),
                       tr("A small drafting program with mouse gestures.\n\n"
                          "Drag with the right button in the drawing to open the ring of commands; "
                          "type GESTURE to choose its commands."));
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    event->setAccepted(mayLeave());
}
