// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

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

// The main window of a program without gestures of its own.
class GuestWindow : public QMainWindow
{
    Q_OBJECT

public:
    GuestWindow();
    ~GuestWindow() override;

    // True if the Tools menu has the module's entry.
    [[nodiscard]] bool hasEntry() const;
    [[nodiscard]] QAction *entry() const;
    // Presses the right button in the middle of the view and drags to the right.
    void press();
    void dragTo(int distance);
    void release(int distance);

    // Opens a view and closes the current one, if any.
    void openView();
    // Replaces the menu bar by one with the same menus, as programs do when the task changes.
    void replaceMenuBar();

    GuestView *view = nullptr;
    QAction *line = nullptr;
    QMenu *tools = nullptr;
    int lines = 0; // how often "drawLine" ran

private:
    void fillMenuBar();
};
