#pragma once

#include <QFile>
#include <QObject>
#include <QRect>
#include <QSet>
#include <QStringList>
#include <QTimer>

#include <map>

QT_BEGIN_NAMESPACE
class QAction;
class QMenu;
class QWidget;
class QWindow;
QT_END_NAMESPACE

// Watches the program that it is loaded into and changes nothing.
//
// Writes one line for each thing that happened, its fields separated by tabs, to the file
// or named pipe that ACTIONSPY_LOG names:
//
//     started    PID
//     window     CLASS  X,Y,W,H  TITLE      a window came up
//     dialog     CLASS  X,Y,W,H  TITLE      the same, and it blocks others: it is modal
//     menu       CLASS  OBJECTNAME          a menu opened
//     entries    CAPTION...                 what that menu shows, separators left out
//     choices    TEXT...                    what a combo box of a dialog that came up offers
//     gone       CLASS                      a window or menu was closed
//     exposed    CLASS                      a window is on screen, and all have dealt with that
//     view       CLASS  X,Y,W,H             a drawing view is there, in global pixels
//     widget     OBJECTNAME  X,Y,W,H        a widget to look for is there, in global pixels
//     ready                                 view and menu entry are there, see below
//     triggered  OBJECTNAME  CAPTION        an action ran; comes when the program has dealt
//                                           with it, so after a modal dialog that it opened
//     press      BUTTON  CLASS  X,Y         a mouse event reached a widget; also "release"
//                                           and "doubleclick"
//     contextmenu  CLASS  REASON            a context-menu event reached a widget
//     key        NAME  CLASS                a key press reached a widget
//     quit                                  the program is about to end
//
// ACTIONSPY_VIEW names the classes of drawing views, separated by commas, ACTIONSPY_WIDGETS
// the object names of widgets to look for; ACTIONSPY_ENTRY is the caption of the menu entry
// that "ready" waits for, if it shall wait for one.
//
// Its event filter is the application's: what a plug-in created after it holds back does
// not reach it, as it does not reach the program.
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
    void writeEntries(const QWidget &menu);
    void writeChoices(const QWidget &dialog);
    void watchAction(QAction *action);
    void lookAround();
    void reportPlaces();
    [[nodiscard]] bool hasEntry() const;

    QFile m_log;
    QStringList m_viewClasses;
    QStringList m_widgetNames;
    QString m_entry;
    QTimer m_lookAround; // once for all events of one turn of the event loop
    QSet<const QAction *> m_actions;
    using Places = std::map<const QWidget *, QRect>;
    Places m_views;
    Places m_widgets;
    bool m_isReady = false;
};
