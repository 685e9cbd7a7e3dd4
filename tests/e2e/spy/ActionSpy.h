// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFile>
#include <QObject>
#include <QRect>
#include <QSet>
#include <QStringList>
#include <QTimer>

#include <map>
#include <utility>

QT_BEGIN_NAMESPACE
class QAction;
class QKeyEvent;
class QMenu;
class QWidget;
class QWindow;
QT_END_NAMESPACE

// Watches the program that it is loaded into and changes nothing.
//
// Writes one line for each event to the file or named pipe in ACTIONSPY_LOG. Tabs separate
// the fields:
//
//     started    PID
//     window     CLASS  X,Y,W,H  TITLE      a window came up
//     dialog     CLASS  X,Y,W,H  TITLE      a modal window came up
//     menu       CLASS  OBJECTNAME          a menu opened
//     entries    CAPTION...                 the entries of that menu, without separators
//     choices    TEXT...                    the items of a combo box in a new modal window
//     gone       CLASS                      a window or menu was closed
//     exposed    CLASS                      a window is on screen, and the program knows it
//     view       CLASS  X,Y,W,H             a view is visible; global pixels
//     widget     OBJECTNAME  X,Y,W,H  X,Y,W,H   a widget to look for is visible; global pixels, and
//                                           pixels of its window
//     ready                                 view and menu entry exist, see below
//     hasentry   N                          how many menus have the entry
//     where      OBJECTNAME  TITLE          the same action, and its window
//     triggered  OBJECTNAME  CAPTION        an action ran; written when it has finished, so
//                                           after a modal dialog that it opened
//     press      BUTTON  CLASS  X,Y         a mouse event reached a widget; also "release"
//                                           and "doubleclick"
//     contextmenu  CLASS  REASON            a context-menu event reached a widget
//     typed      NAME  CLASS                a key press reached its first widget
//     key        NAME  CLASS                a key press reached a widget
//     quit                                  the program is about to end
//
// ACTIONSPY_VIEW lists the classes of views, by the name that Qt or the source gives them,
// ACTIONSPY_WIDGETS the object names of widgets to look for, both separated by commas. ACTIONSPY_ENTRY
// is the caption of the menu entry that "ready" waits for; if it is empty, "ready" waits only for a
// view.
//
// It filters the application's events. An event that a plug-in created later holds back
// reaches neither the spy nor the program.
class ActionSpy : public QObject
{
    Q_OBJECT

public:
    ActionSpy();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void write(const QStringList &fields);
    void watchExposure(QWindow *window);
    void watchWidgetEvent(QWidget *widget, QEvent *event);
    void noteKey(const QWidget &widget, const QKeyEvent &event);
    void writeEntries(const QWidget &menu);
    void writeChoices(const QWidget &dialog);
    void watchAction(QAction *action);
    void lookAround();
    void reportPlaces();
    [[nodiscard]] int countEntries() const;

    QFile m_log;
    QStringList m_viewClasses;
    QStringList m_widgetNames;
    QString m_entry;
    QTimer m_lookAround; // fires once for all events of one loop iteration
    QSet<const QAction *> m_actions;
    using Places = std::map<const QWidget *, QRect>;
    Places m_views;
    Places m_widgets;
    // The X server's time in milliseconds, and the key. Two keys may have the same time.
    using Typed = std::pair<ulong, int>;
    Typed m_lastTyped;
    int m_entries = 0;
    bool m_isReady = false;
};
