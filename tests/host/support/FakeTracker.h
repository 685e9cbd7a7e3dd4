// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/chx/CHxDocument.h"
#include "sdk/chx/CHxHitTestInfo.h"
#include "sdk/chx/CHxTracker.h"
#include "sdk/QtBridge.h"

#include <QMouseEvent>
#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <functional>
#include <memory>

namespace tests {

// The window that a tracker shows during a gesture. It grabs the mouse, and stops on a release or
// when the pointer is 70 pixels away from the first movement that it saw.
class FakeOverlay : public QWidget
{
public:
    FakeOverlay()
        : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint)
    {
        resize(50, 50);
    }

    void start()
    {
        m_movements = 0;
        show();
        grabMouse();
        isOn = true;
    }
    void stop(bool isAccepted)
    {
        isOn = false;
        hasStopped = true;
        accepted = isAccepted;
        // Qt 5 takes the grab from its current owner.
        if (QWidget::mouseGrabber() == this)
            releaseMouse();
        hide();
    }

    bool isOn = false;
    bool hasStopped = false;
    bool accepted = false;
    int acceptDistance = 70;
    QStringList log;

protected:
    void mouseMoveEvent(QMouseEvent *event) override
    {
        log << QStringLiteral("move");
        if (m_movements++ == 0)
            m_first = qtbridge::globalPosition(*event);
        const QPoint distance = qtbridge::globalPosition(*event) - m_first;
        if (isOn && distance.manhattanLength() >= acceptDistance)
            stop(true);
    }
    void mouseReleaseEvent(QMouseEvent *) override
    {
        log << QStringLiteral("release");
        if (isOn)
            stop(false);
    }

private:
    int m_movements = 0;
    QPoint m_first;
};

// A tracker that takes every drag of more than 20 pixels. It prepares its overlay on one update,
// starts it on the next, and runs one command for each accepted overlay.
class FakeTracker : public CHxTracker
{
public:
    FakeTracker() = default;
    ~FakeTracker() override = default;

    void Update(CHxTrackerContext *, CHxHitTestInfo *hit) override
    {
        ++updates;
        if (hit->IsModalWindowOpen() || hit->IsPopupOpen() || hit->IsMouseGrabbed()
            || hit->IsOtherButtonDown() || hit->IsModifierMismatch() || hit->IsOverControl()
            || hit->IsViewBlocked()) {
            ++suppressed;
            return;
        }
        if (hit->IsPress()) {
            ++presses;
            m_press = hit->GetPosition();
            m_isTracking = true;
        } else if (!m_isTracking) {
            return;
        }
        const int distance = (hit->GetPosition() - m_press).manhattanLength();
        if (takesDrags && hit->IsMotion() && hit->IsButtonHeld() && distance > 20) {
            hit->NotifyDrag();
            ++drags;
            document = hit->GetDocument();
            if (!m_isArmed && !overlay->isOn && !overlay->hasStopped) {
                m_isArmed = true;
                return;
            }
        }
        if (m_isArmed) {
            m_isArmed = false;
            ++starts;
            if (showsOverlay)
                overlay->start();
        }
        if (!overlay->hasStopped)
            return;
        overlay->hasStopped = false;
        m_isTracking = false;
        ++stops;
        if (hit->IsButtonHeld())
            hit->NotifyEnd();
        m_isPending = overlay->accepted;
    }
    void DrawTracker(CHxTrackerContext *, const CHxHitTestInfo *) const override { }
    void DrawDDTracker(CHxTrackerContext *, const CHxHitTestInfo *) const override { }
    [[nodiscard]] bool IsEager(const CHxHitTestInfo *) const override { return m_isPending; }
    bool DoAction(const CHxHitTestInfo *) override
    {
        m_isPending = false;
        ++commands;
        if (onCommand)
            onCommand();
        return true;
    }

    bool takesDrags = true;
    bool showsOverlay = true;
    std::function<void()> onCommand;
    std::unique_ptr<FakeOverlay> overlay = std::make_unique<FakeOverlay>();
    CHxDocument *document = nullptr;
    int updates = 0;
    int suppressed = 0;
    int presses = 0;
    int drags = 0;
    int starts = 0;
    int stops = 0;
    int commands = 0;

private:
    QPoint m_press;
    bool m_isTracking = false;
    bool m_isArmed = false;
    bool m_isPending = false;
};

} // namespace tests
