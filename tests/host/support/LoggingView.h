// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/QtBridge.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMetaEnum>
#include <QMouseEvent>
#include <QStringList>
#include <QTabletEvent>
#include <QWheelEvent>
#include <QWidget>

#include <functional>

namespace tests {

// Logs the input events that a program's view gets, one line for each.
class LoggingView : public QWidget
{
public:
    explicit LoggingView(QWidget *parent = nullptr)
        : QWidget(parent)
    {
        setFocusPolicy(Qt::ClickFocus);
        setMouseTracking(true);
    }

    QStringList log;
    std::function<void()> onPress;
    std::function<void(QPoint global)> onContextMenu;

    [[nodiscard]] static QString describe(const QEvent &event)
    {
        const QMetaEnum types = QMetaEnum::fromType<QEvent::Type>();
        QString line = QString::fromLatin1(types.valueToKey(event.type()));
        if (event.spontaneous())
            line += QStringLiteral(" spontaneous");
        switch (event.type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove: {
            const auto &mouse = static_cast<const QMouseEvent &>(event);
            line += QStringLiteral(" at %1,%2 global %3,%4 button %5 buttons %6 modifiers %7 flags %8")
                        .arg(qtbridge::localPosition(mouse).x())
                        .arg(qtbridge::localPosition(mouse).y())
                        .arg(qtbridge::globalPosition(mouse).x())
                        .arg(qtbridge::globalPosition(mouse).y())
                        .arg(mouse.button())
                        .arg(mouse.buttons())
                        .arg(mouse.modifiers())
                        .arg(mouse.flags());
            break;
        }
        case QEvent::ContextMenu: {
            const auto &menu = static_cast<const QContextMenuEvent &>(event);
            line += QStringLiteral(" at %1,%2 reason %3")
                        .arg(menu.pos().x())
                        .arg(menu.pos().y())
                        .arg(menu.reason());
            break;
        }
        case QEvent::TabletPress:
        case QEvent::TabletMove:
        case QEvent::TabletRelease: {
            const auto &pen = static_cast<const QTabletEvent &>(event);
            line += QStringLiteral(" at %1,%2 pressure %3 button %4 buttons %5")
                        .arg(qtbridge::localPosition(pen).x())
                        .arg(qtbridge::localPosition(pen).y())
                        .arg(pen.pressure())
                        .arg(pen.button())
                        .arg(pen.buttons());
            break;
        }
        case QEvent::KeyPress:
        case QEvent::KeyRelease: {
            const auto &key = static_cast<const QKeyEvent &>(event);
            line += QStringLiteral(" key %1 text \"%2\" modifiers %3")
                        .arg(key.key())
                        .arg(key.text())
                        .arg(key.modifiers());
            break;
        }
        case QEvent::Wheel: {
            const auto &wheel = static_cast<const QWheelEvent &>(event);
            line += QStringLiteral(" at %1,%2 by %3 buttons %4")
                        .arg(wheel.position().x())
                        .arg(wheel.position().y())
                        .arg(wheel.angleDelta().y())
                        .arg(wheel.buttons());
            break;
        }
        default:
            break;
        }
        return line;
    }
    // True for the events that are logged.
    [[nodiscard]] static bool isInput(const QEvent &event)
    {
        switch (event.type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::ContextMenu:
        case QEvent::Wheel:
        case QEvent::TabletPress:
        case QEvent::TabletMove:
        case QEvent::TabletRelease:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::Enter:
        case QEvent::Leave:
        case QEvent::FocusIn:
            return true;
        default:
            return false;
        }
    }

protected:
    bool event(QEvent *event) override
    {
        if (isInput(*event))
            log << describe(*event);
        return QWidget::event(event);
    }
    void mousePressEvent(QMouseEvent *) override
    {
        if (onPress)
            onPress();
    }
    void mouseReleaseEvent(QMouseEvent *) override { }
    void mouseMoveEvent(QMouseEvent *) override { }
    void mouseDoubleClickEvent(QMouseEvent *) override { }
    void contextMenuEvent(QContextMenuEvent *event) override
    {
        if (onContextMenu)
            onContextMenu(event->globalPos());
    }
};

} // namespace tests
