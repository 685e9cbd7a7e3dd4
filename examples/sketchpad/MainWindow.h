#pragma once

#include "examples/sketchpad/Tool.h"

#include <QMainWindow>

class Canvas;
class CommandLine;

QT_BEGIN_NAMESPACE
class QLabel;
QT_END_NAMESPACE

// The window: menus, tool bars, the canvas, the command line and the status bar. Whatever
// is run, from wherever, is run by triggering its action.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(QWidget *parent = nullptr);

    // The drawing view, which is where gestures are made.
    [[nodiscard]] Canvas *canvas() const { return m_canvas; }
    [[nodiscard]] Drawing &drawing() { return m_drawing; }

    // Opens a drawing, or tells the person why not and keeps the one that is open.
    bool openFile(const QString &path);
    // Writes the drawing, unless that would lose what its file holds. Tells the person so.
    bool saveFile(const QString &path);
    // Runs what was typed: a step of the running command, a command of this program, or
    // one that a module has registered.
    void run(const QString &typed);

protected:
    void closeEvent(QCloseEvent *event) override;

private:
    struct Command;
    static const Command kCommands[];

    void buildCommands();
    void buildPanels();
    void showContextMenu(const QPoint &position);
    void showState();
    // Whether the drawing on the screen may go, as far as the person is concerned.
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
    QList<QWidget *> m_hidden; // by full screen
    QString m_path; // of the drawing; empty if it has no file yet
    QString m_last; // typed name of the command that Enter repeats
};
