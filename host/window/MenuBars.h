// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QVector>

QT_BEGIN_NAMESPACE
class QMainWindow;
class QMenuBar;
class QToolBar;
QT_END_NAMESPACE

// The menu bars and toolbars that act on what one main window shows. This is the only place
// that says when a window has a menu bar, so every caller gets the same answer.
//
// Bars inside another window that belongs to the main window, such as a text editor or a
// dialog, act on that window and do not count. A floating toolbar and a bar in a floating
// dock do count. No function here makes a bar, as QMainWindow::menuBar() would.
namespace gesturewidget {

// The window's own menu bar first; empty if it has none or `window` is null.
[[nodiscard]] QVector<QMenuBar *> menuBarsOf(const QMainWindow *window);
[[nodiscard]] QVector<QToolBar *> toolBarsOf(const QMainWindow *window);
// Exported because the plug-in asks this too.
[[nodiscard]] Q_DECL_EXPORT bool hasMenuBar(const QMainWindow *window);

} // namespace gesturewidget
