// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPointer>
#include <QSet>
#include <QVector>

class QAction;
class QMainWindow;
class QMenuBar;
class QToolBar;
class QWidget;

namespace gesturewidget {

// Reports changes of the program's menus and toolbars. It stores only the list of what it watches,
// so a program that changes hundreds of actions at a time pays for one look-up each.
class MenuChanges : public QObject
{
    Q_OBJECT

public:
    explicit MenuChanges(QMainWindow *window);
    ~MenuChanges() override;

    // The window's bars at the moment, see menuBarsOf() and toolBarsOf().
    [[nodiscard]] QVector<QMenuBar *> menuBars() const;
    [[nodiscard]] QVector<QToolBar *> toolBars() const;

    // Starts watching a menu, menu bar or toolbar. Watching it again has no effect.
    void watch(QWidget *widget);

    bool eventFilter(QObject *watched, QEvent *event) override;

Q_SIGNALS:
    // Actions were added or removed, or a menu, menu bar or toolbar was.
    void structureChanged();
    // An action has changed in text, state or anything else.
    void actionChanged(QAction *action);

private:
    QPointer<QWidget> m_window; // during its destruction it is no longer a QMainWindow
    QSet<const QObject *> m_watched;
};

} // namespace gesturewidget
