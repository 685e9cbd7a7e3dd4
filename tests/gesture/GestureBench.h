// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "gesture/MgDonutDialogPVStyleImpl.h"
#include "tests/fakehost/FakeHost.h"

#include <QPointer>
#include <QWidget>

#include <memory>
#include <vector>

namespace tests {

// A view that records what the pointer does in it.
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

// A ring that counts its paints, and those while it fades.
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

// Everything that a gesture needs: a host with the factory's commands, one open document with
// its view on the screen, and a pointer to move over it.
//
// The commands are the eight that are bound at first. "ID_LINE" runs "line", "ID_ZOOM_BOUNDS"
// runs "zoom_bounds" and so on. None has an icon.
class GestureBench
{
public:
    GestureBench();
    ~GestureBench();

    // Four or eight sectors, and gestures on or off. The next gesture sees it.
    void setScheme(int sectors);
    void setEnabled(bool enabled);
    // Opens another document. Its view is not shown.
    FakeDocument *openDocument();

    // Moves the system's pointer here, in pixels of the view, and delivers the move.
    void pointTo(const QPoint &viewPosition);
    // The same for an offset from the ring's centre, with y upward.
    void pointTo(const MgDonutDialogPVStyleImpl &donut, int x, int y);
    // Presses and releases the right button in the view, as the window system reports it.
    void press(const QPoint &viewPosition);
    void release(const QPoint &viewPosition, Qt::KeyboardModifiers modifiers = {});

    // Does nothing if the button is up.
    void releaseIfPressed();
    // Gives the document another view, here on the screen, and destroys the one that it has.
    void makeView(const QPoint &corner = QPoint(150, 150));

    // Arms and starts a gesture with its centre and the pointer here.
    void start(MgDonutDialogPVStyleImpl &donut, const QPoint &centre = QPoint(200, 200));

    FakeHost host;
    FakeDocument *document = nullptr;
    QPointer<NotingView> view;

private:
    bool m_pressed = false;
};

} // namespace tests
