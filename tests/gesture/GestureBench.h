#pragma once

#include "gesture/MgDonutDialogPVStyleImpl.h"
#include "tests/fakehost/FakeHost.h"

#include <QWidget>

#include <memory>
#include <vector>

namespace tests {

// A drawing view that notes what the pointer does in it.
class NotingView : public QWidget
{
public:
    struct Move
    {
        QPoint position;
        QPoint global;
        Qt::MouseButton button;
        Qt::MouseButtons buttons;
        Qt::KeyboardModifiers modifiers;
    };

    std::vector<Move> moves;
    int presses = 0;
    int releases = 0;

protected:
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
};

// A ring that counts how often it was painted, and says with which flag.
class CountingDonut : public MgDonutDialogPVStyleImpl
{
public:
    explicit CountingDonut(QWidget *parent = nullptr)
        : MgDonutDialogPVStyleImpl(parent, Qt::WindowFlags())
    {
    }

    void paint(QPaintEvent *event) override;

    int paints = 0;
    int fadingPaints = 0;
};

// What a gesture needs around it: a host with the factory's commands and one open document,
// whose view is on the screen, and a pointer to move over it.
//
// The commands are "ID_LINE" and the seven others that are bound at first; "ID_LINE" runs
// "line", "ID_ZOOM_BOUNDS" "zoom_bounds" and so on. None has an icon.
class GestureBench
{
public:
    GestureBench();
    ~GestureBench();

    // Four or eight sectors, and gestures on or off, from the next start of a gesture on.
    void setScheme(int sectors);
    void setEnabled(bool enabled);
    // Another open document with a view of its own, which is not shown.
    FakeDocument *openDocument();

    // Puts the system's pointer here, in pixels of the view, and delivers the move.
    void pointTo(const QPoint &viewPosition);
    // The same for an offset from the ring's centre, with y upward.
    void pointTo(const MgDonutDialogPVStyleImpl &donut, int x, int y);
    // Presses and lets go of the button, as the window system reports it of the view.
    void press(const QPoint &viewPosition);
    void release(const QPoint &viewPosition, Qt::KeyboardModifiers modifiers = {});

    // Arms and starts a gesture with the centre here and the pointer on it.
    void start(MgDonutDialogPVStyleImpl &donut, const QPoint &centre = QPoint(200, 200));

    FakeHost host;
    FakeDocument *document = nullptr;
    NotingView *view = nullptr;

private:
    bool m_pressed = false;
};

} // namespace tests
