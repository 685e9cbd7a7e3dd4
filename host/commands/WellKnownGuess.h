#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

QT_BEGIN_NAMESPACE
class QAction;
QT_END_NAMESPACE

namespace gesturewidget {

// Finds the well-known commands, such as "ID_LINE", among the actions of a program without a
// profile. The signs are, in the order of trust: the standard shortcut, the name of the theme
// icon, the object name, the caption. Among equals, the action in the menu where such commands are
// wins. Switches of toolbars and docks are no commands. A single sign that another one contradicts
// does not count, such as Ctrl+C on "Connect".
struct WellKnownGuess
{
    QString identifier;
    QAction *action = nullptr;
    // The weight of the signs; more than 0.
    int weight = 0;
    // The signs, one line for a person, such as: icon "document-open", caption "Open".
    QString reason;

    // Returns the identifiers that can be guessed, sorted.
    [[nodiscard]] static QStringList identifiers();
    // Returns a caption for that identifier, for the time when the program shows none; empty if
    // the identifier is not well known.
    [[nodiscard]] static QString captionOf(const QString &identifier);

    // Returns the best action for each of `wanted`; among equals the first in `actions`. An action
    // gets one identifier at most. Identifiers without any sign are left out. `actions` holds no
    // nulls.
    [[nodiscard]] static QVector<WellKnownGuess> among(const QVector<QAction *> &actions,
                                                       const QStringList &wanted = identifiers());
};

} // namespace gesturewidget
