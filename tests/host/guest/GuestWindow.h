#pragma once

#include <QMainWindow>
#include <QWidget>

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

    GuestView *view = nullptr;
    QMenu *tools = nullptr;
    int lines = 0; // how often "drawLine" ran
};
