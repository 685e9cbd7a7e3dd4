// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "examples/sketchpad/Tool.h"

#include <QMainWindow>

class Canvas;
class CommandLine;

QT_BEGIN_NAMESPACE
class QLabel;
QT_END_NAMESPACE

// A window with a drawing: menus, tool bars, the canvas, the command line and the status bar. Every
// command runs by triggering its action, wherever it was chosen.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);

    // The view, in which gestures are made.
    [[nodiscard]] Canvas *canvas() const { return m_canvas; }
    [[nodiscard]] Drawing &drawing() { return m_drawing; }

    // Opens a drawing. If that fails, tells the person why and keeps the open one.
    bool openFile(const QString &path);
    // Writes the drawing. Refuses, and tells the person, if data in the file would be lost.
    bool saveFile(const QString &path);
    // Runs typed text: a step of the running command, a command of this program, or a
    // command that a module has registered.
    void run(const QString &typed);

Q_SIGNALS:
    // The person wants another window.
    void newWindowWanted();

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    struct Command;
    static const Command kCommands[];

    void buildCommands();
    void buildPanels();
    void showContextMenu(const QPoint &position);
    void showState();
    // Returns true if the open drawing may be closed: it has no changes, or the person agrees.
    bool mayLeave();
    bool save();

    void fileNew();
    void fileOpen();
    void fileSave() { save(); }
    void fileSaveAs();
    // Hides everything but the drawing, or shows it again.
    void setFullScreen(bool full);
    void editErase();
    void editSelectAll();
    void helpAbout();

    Drawing m_drawing;
    Canvas *m_canvas;
    CommandLine *m_commandLine;
    QLabel *m_coordinates;
    QList<QWidget *> m_hidden; // while the drawing fills the screen
    QString m_path; // of the drawing; empty if it was never saved
    QString m_last; // typed name of the command that Enter repeats
};
