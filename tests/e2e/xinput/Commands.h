// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QHash>
#include <QImage>
#include <QRect>
#include <QString>
#include <QStringList>

class XDesktop;

// The driver's language: one command a line, one line of answer. The answer is "ok" with what
// was asked for, or "error" with the reason.
//
//     move X Y               press N     release N     click N     pointer -> X Y
//     drag DX DY MS [STEPS]  moves by that much in MS milliseconds
//     key NAME               such as Return or ctrl+s
//     type TEXT
//     hold NAME              let-go NAME     ctrl, shift or alt
//     windows                -> "ID X Y W H TITLE", separated by tabs
//     wait-window TITLE MS   a window whose title contains TITLE -> ID X Y W H
//     wait-no-window TITLE MS
//     wait-focus TITLE MS    keys go to a window whose title contains TITLE
//     wait-pointer-in TITLE MS   the pointer is in such a window, with nothing above it
//     wait-size W H MS       a window of that size -> ID X Y W H
//     wait-no-size W H MS
//     wait-no-popup MS       no menu and no list of a combo box is on screen
//     close TITLE            activate TITLE          minimize TITLE
//     place TITLE X Y W H    moves and resizes a window where there is no window manager
//     focus-on TITLE         gives it the keyboard where there is no window manager
//     focus                  -> "active ID focus ID": the window manager's active window, and
//                            the root's child that has the keyboard
//     watch                  starts to count the announcements of an active window
//     activations            -> N, the announcements since then or since the last time
//     screenshot FILE [X Y W H]
//     remember X Y W H       what the screen shows there
//     wait-change MS         the screen shows something else there
//     wait-steady MS         the screen shows the same there for 40 ms; that is remembered
//     keep NAME              what was remembered last, for later
//     difference NAME        -> N, how many of a million pixels the screen shows differently there
//     grabs                  -> "pointer free|taken keyboard free|taken"
//
// Put a word with spaces in double quotes.
class Commands
{
public:
    explicit Commands(XDesktop &desktop);

    // Carries out one command. The answer has no line end.
    [[nodiscard]] QString run(const QString &line);

private:
    QString input(const QString &name, const QStringList &words);
    QString windows(const QString &name, const QStringList &words);
    QString picture(const QString &name, const QStringList &words);

    XDesktop &m_desktop;
    QRect m_area;
    QImage m_seen;
    QHash<QString, QImage> m_kept;
};
