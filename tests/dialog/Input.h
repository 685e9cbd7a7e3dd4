// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QPointer>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

// Sends mouse and key events to windows, so grabs, focus and popups work as in real use.
namespace tests {

// Shows a window and waits until it has the keyboard.
[[nodiscard]] inline bool showActive(QWidget &window)
{
    window.show();
    window.activateWindow();
    return QTest::qWaitForWindowActive(&window);
}

inline void click(QWidget *widget, const QPoint &position, Qt::KeyboardModifiers modifiers = {})
{
    QWidget *window = widget->window();
    QTest::mouseClick(window->windowHandle(), Qt::LeftButton, modifiers,
                      widget->mapTo(window, position));
}

// Clicks the left edge of a button. Check boxes and radio buttons have their mark there.
inline void click(QAbstractButton *button)
{
    click(button, QPoint(8, button->height() / 2));
}

// Clicks the middle of an item.
inline void click(QAbstractItemView *view, const QModelIndex &index,
                  Qt::KeyboardModifiers modifiers = {})
{
    click(view->viewport(), view->visualRect(index).center(), modifiers);
}

// The window that receives keys: an open popup takes them from other windows.
[[nodiscard]] inline QWindow *keyWindow(QWidget *widget)
{
    QWidget *popup = QApplication::activePopupWidget();
    return (popup ? popup : widget->window())->windowHandle();
}

// Looks the window up again for the release: the press may have closed a popup.
inline void key(QWidget *widget, Qt::Key which, Qt::KeyboardModifiers modifiers = {})
{
    QTest::keyPress(keyWindow(widget), which, modifiers);
    QTest::keyRelease(keyWindow(widget), which, modifiers);
}

// One notch of the wheel is 120; positive values turn it away from the user.
inline void wheel(QWidget *widget, const QPoint &position, int angle)
{
    QWidget *window = widget->window();
    QWheelEvent event(widget->mapTo(window, position), widget->mapToGlobal(position), QPoint(),
                      QPoint(0, angle), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    // Marks the event as coming from the window system. Otherwise Qt does not pass an ignored event to
    // the parent.
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(window->windowHandle(), &event);
}

inline void type(QWidget *widget, const QString &text)
{
    for (const QChar character : text)
        QTest::keyClick(widget->window()->windowHandle(), character.toLatin1());
}

// Points at an entry of an open drop-down and clicks it. Returns true once the list has closed. Call
// it again otherwise: a drop-down ignores clicks for a moment after the mouse opened it.
[[nodiscard]] inline bool chooseWithMouse(QComboBox *box, int row)
{
    // The choice may destroy the drop-down and its list.
    const QPointer<QAbstractItemView> list = box->view();
    if (!list->isVisible())
        return true;
    const QModelIndex index = box->model()->index(row, 0);
    QWidget *window = list->window();
    QTest::mouseMove(window->windowHandle(),
                     list->viewport()->mapTo(window, list->visualRect(index).center()));
    click(list, index);
    return !list || !list->isVisible();
}

} // namespace tests
