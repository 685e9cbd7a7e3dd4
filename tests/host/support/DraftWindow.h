// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPixmap>
#include <QToolBar>

namespace tests {

// A small drafting program's menus: "&File" (new, open, a separator, "Export" with two unnamed
// entries), "&Draw" (line, circle), "&Help". One toolbar, "Drawing", has line and arc; arc is in
// no menu.
class DraftWindow : public QMainWindow
{
public:
    DraftWindow()
    {
        file = addMenu("&File", "fileMenu");
        fileNew = addAction(file, "&New", "fileNew");
        fileOpen = addAction(file, "&Open...\tCtrl+O", "fileOpen");
        file->addSeparator();
        exports = file->addMenu(QStringLiteral("&Export"));
        exportPicture = exports->addAction(QStringLiteral("&Picture..."));
        exportText = exports->addAction(QStringLiteral("&Text && numbers..."));
        draw = addMenu("&Draw", "drawMenu");
        line = addAction(draw, "&Line", "drawLine");
        line->setStatusTip(QStringLiteral("Draws a line"));
        line->setToolTip(QStringLiteral("Line"));
        QPixmap pixmap(16, 16);
        pixmap.fill(Qt::red);
        line->setIcon(QIcon(pixmap));
        circle = addAction(draw, "&Circle", "drawCircle");
        circle->setToolTip(QStringLiteral("<h3>Circle</h3>By its <b>centre</b>"));
        help = addMenu("&Help", "helpMenu");
        addAction(help, "&About", "helpAbout");
        toolBar = addToolBar(QStringLiteral("Drawing"));
        toolBar->addAction(line);
        arc = new QAction(QStringLiteral("&Arc"), this);
        arc->setObjectName(QStringLiteral("drawArc"));
        toolBar->addAction(arc);
    }

    QMenu *addMenu(const char *title, const char *name)
    {
        QMenu *menu = menuBar()->addMenu(QString::fromUtf8(title));
        menu->setObjectName(QString::fromUtf8(name));
        return menu;
    }
    static QAction *addAction(QMenu *menu, const char *text, const char *name)
    {
        QAction *action = menu->addAction(QString::fromUtf8(text));
        action->setObjectName(QString::fromUtf8(name));
        return action;
    }

    QMenu *file = nullptr;
    QMenu *exports = nullptr;
    QMenu *draw = nullptr;
    QMenu *help = nullptr;
    QToolBar *toolBar = nullptr;
    QAction *fileNew = nullptr;
    QAction *fileOpen = nullptr;
    QAction *exportPicture = nullptr;
    QAction *exportText = nullptr;
    QAction *line = nullptr;
    QAction *circle = nullptr;
    QAction *arc = nullptr;
};

} // namespace tests
