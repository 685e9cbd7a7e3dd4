#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

QT_BEGIN_NAMESPACE
class QAction;
QT_END_NAMESPACE

namespace gesturewidget {

// Finds the well-known commands, such as "ID_LINE", among the actions of a program that
// nobody has described: by the standard shortcut, by the name of the theme icon, by the
// object name and by the caption, in this order of trust; of equals the one in the menu where
// such commands are. What switches a toolbar or a dock is none, nor what a single sign speaks
// for while another one contradicts it, such as Ctrl+C on "Connect".
struct WellKnownGuess
{
    QString identifier;
    QAction *action = nullptr;
    // How much speaks for it; more than 0.
    int weight = 0;
    // One line for a person, such as: icon "document-open", caption "Open".
    QString reason;

    // The identifiers that can be guessed, sorted.
    [[nodiscard]] static QStringList identifiers();
    // What a command of that identifier is called where the program does not say; empty
    // for an identifier that is not well known.
    [[nodiscard]] static QString captionOf(const QString &identifier);

    // For each of `wanted` the action that most speaks for; of equals the first in
    // `actions`. An action stands for one identifier at most. What nothing speaks for is
    // left out. `actions` holds no nulls.
    [[nodiscard]] static QVector<WellKnownGuess> among(const QVector<QAction *> &actions,
                                                       const QStringList &wanted = identifiers());
};

} // namespace gesturewidget
