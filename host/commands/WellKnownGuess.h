// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/files/Phrase.h"

#include <QString>
#include <QStringList>
#include <QVector>

QT_BEGIN_NAMESPACE
class QAction;
QT_END_NAMESPACE

namespace gesturewidget {

// Finds the well-known commands, such as "ID_LINE", among the actions of a program that
// nobody has described. The signs are, in this order of trust, the standard shortcut, the name
// of the theme icon, the object name and the caption in any known language; of equals the
// action in the menu where such commands are.
//
// A wrong command is worse than none. So a shortcut or an icon needs a caption or an object
// name beside it, an ambiguous name or caption counts in no other menu, and what switches a
// toolbar, a dock or a mode is never a command.
struct WellKnownGuess
{
    QString identifier;
    QAction *action = nullptr;
    // The weight of the signs; more than 0.
    int weight = 0;
    // The signs, one line for a person, such as: icon "document-open", caption "Open".
    Phrase reason;

    // Returns the identifiers that can be guessed, sorted.
    [[nodiscard]] static QStringList identifiers();

    // Returns the best action for each of `wanted`; among equals the first in `actions`. An action
    // gets one identifier at most. Identifiers without any sign are left out. `actions` holds no
    // nulls.
    [[nodiscard]] static QVector<WellKnownGuess> among(const QVector<QAction *> &actions,
                                                       const QStringList &wanted = identifiers());
};

} // namespace gesturewidget
