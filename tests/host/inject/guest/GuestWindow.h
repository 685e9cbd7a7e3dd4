#pragma once

#include <QMainWindow>
#include <QWidget>

class QAction;
class QMenu;

class GuestView : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;
};

// The main window of a program that knows nothing of gestures.
class GuestWindow : public QMainWindow
{
    Q_OBJECT

public:
    GuestWindow();
    ~GuestWindow() override;

    // Whether the Tools menu holds the entry of the module.
    [[nodiscard]] bool hasEntry() const;
    [[nodiscard]] QAction *entry() const;
    // Presses the right button in the middle of the view and drags to the right.
    void press();
    void dragTo(int distance);
    void release(int distance);

    // A new view in place of the one that is there, if any.
    void openView();
    // A new menu bar with the same menus, as programs make one for another task.
    void replaceMenuBar();

    GuestView *view = nullptr;
    QAction *line = nullptr;
    QMenu *tools = nullptr;
    int lines = 0; // how often "drawLine" ran

private:
    void fillMenuBar();
};
