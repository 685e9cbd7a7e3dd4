// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "gesture/MgDonutDialogPVStyleImpl.h"
#include "gesture/MgMouseGestureTracker.h"
#include "host/documents/DocumentManager.h"
#include "host/input/PointerFilter.h"
#include "tests/fakehost/FakeHost.h"
#include "tests/walk/Step.h"

#include <QPointer>
#include <QWidget>

#include <memory>
#include <vector>

namespace tests {

// A program with a drawing view, and what makes a desk of it: somebody who acts there. The view logs
// what it gets.
class DrawingDesk
{
public:
    DrawingDesk();
    virtual ~DrawingDesk();
    DrawingDesk(const DrawingDesk &) = delete;
    DrawingDesk &operator=(const DrawingDesk &) = delete;

    // Pixels of the view.
    static QRect viewArea();
    static QRect controlArea();
    // Where the pointer can be: inside the window.
    static QRect reach();

    // Lets the step happen, and all that follows from it.
    virtual void perform(const Step &step);
    // The view's input, one line for each event. The pointer's coming and going is left out: a ring
    // is a window of its own that it comes from.
    [[nodiscard]] const QStringList &log() const { return m_log; }

protected:
    [[nodiscard]] QWidget *view() const { return m_view; }
    // Called with the new view.
    virtual void viewWasReplaced() { }
    // The native window that gets the wheel.
    [[nodiscard]] virtual QWindow *windowUnderPointer() { return m_window.windowHandle(); }
    QWidget m_window;

private:
    void makeView();

    QStringList m_log;
    QPointer<QWidget> m_view;
};

// Without gestures. Of the steps that the rules say belong to a gesture, the program learns nothing.
class BareDesk : public DrawingDesk
{
public:
    void performUnseen(const Step &step);
};

// With the pointer filter, the tracker and the ring.
class GestureDesk : public DrawingDesk
{
public:
    GestureDesk();
    ~GestureDesk() override;

    void perform(const Step &step) override;

    [[nodiscard]] gesturewidget::PointerFilter::State state() const { return m_filter->state(); }
    // Null before the first gesture.
    [[nodiscard]] MgDonutDialogPVStyleImpl *ring() const;
    [[nodiscard]] const std::vector<QString> &commands() const { return m_host.ran; }
    [[nodiscard]] const FakeHost &host() const { return m_host; }
    [[nodiscard]] Qt::CursorShape cursor() const { return view()->cursor().shape(); }

    static constexpr qint16 kOwnMode = 7;
    static constexpr Qt::CursorShape kOwnCursor = Qt::CrossCursor;

protected:
    void viewWasReplaced() override;
    [[nodiscard]] QWindow *windowUnderPointer() override;

private:
    class Host : public FakeHost
    {
    public:
        [[nodiscard]] CHxDocumentManager *GetDocumentManager() override { return &openDocuments; }
        CHxCommandResultPtr RunCommand(const CHxString &command, bool wait) override;

        gesturewidget::DocumentManager openDocuments;
        std::vector<QString> ran;
    };
    class Tracker : public MgMouseGestureTracker
    {
    public:
        using MgMouseGestureTracker::donut;
    };

    void readSettings();

    Host m_host;
    Tracker m_tracker;
    gesturewidget::Trigger m_trigger;
    std::unique_ptr<gesturewidget::PointerFilter> m_filter;
    bool m_areGesturesOn = true;
    int m_sectors = 4;
};

} // namespace tests
