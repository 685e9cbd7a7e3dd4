// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QObject>
#include <QSize>
#include <QStringList>
#include <QTimer>
#include <QVector>

QT_BEGIN_NAMESPACE

class QMainWindow;
QT_END_NAMESPACE

// Writes down the actions and widgets of the program that it is loaded into, at several sizes
// of the main window, and then ends the program at once, without saving anything.
//
// It writes one JSON object to the file in CORPUS_OUT:
//
//     qt         the major version
//     menus      captions of the entries of the menu bar, in order
//     actions    one object for each action, in the order of menu bars, then toolbars:
//                in         where it is: lists of a kind ("menu", "part", "toolbar") and the
//                           titles from the top down; a "part" is a main window in another
//                text, name, keys, icon        left out when empty
//                checkable, disabled, toggle   only if true; "toggle" shows or hides a bar
//     sizes      for each size of the window "window", [width, height], and "widgets", parents
//                first, without what is inside controls, lists, editors and toolbars:
//                in         index of the parent; missing for the main window itself
//                type       the C++ class
//                is         the meta-objects' class names, the most derived first, before QWidget
//                name       the object name
//                at         [x, y, width, height] in the parent, in pixels
//                layout     the class of its layout
//                part       what it is to its parent: "central", "viewport" (of a scroll area),
//                           "content" (of a scroll area, dock or MDI child)
//                hidden, glass (the mouse goes through it), tracks (moves without a button),
//                takesText  only if true
//
// CORPUS_SIZES lists the sizes, such as "900x650,1500x900". CORPUS_STEPS lists what to do first,
// separated by semicolons: the object names or captions of actions to trigger. CORPUS_DIALOGS
// is "accept" to press the default button of the dialogs that come up, otherwise they are
// closed. No title of a window or document is written.
class CorpusRecorder : public QObject
{
    Q_OBJECT

public:
    CorpusRecorder();

private:
    void poll();
    void proceed();
    void closeDialog(QWidget &dialog);
    void write() const;
    [[nodiscard]] QMainWindow *mainWindow() const;

    QTimer m_poll;
    QStringList m_steps;
    QVector<QSize> m_sizes;
    QByteArray m_state; // of the last poll
    int m_steady = 0; // number of polls since the last change
    int m_polls = 0;
    int m_next = -1; // the size that is being waited for
    QJsonArray m_recorded;
};
