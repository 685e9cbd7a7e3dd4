// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/files/RememberedCommand.h"
#include "launcher/Outcome.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

namespace launcher {

// The commands that a program is known to have: those that it showed when it ran with gestures, and
// those that any program may have under a well-known identifier.
class KnownCommands
{
public:
    KnownCommands() = default;
    // `shown` is the content of CatalogueFile, `wellKnown` are further identifiers.
    KnownCommands(const QVector<gesturewidget::RememberedCommand> &shown, const QStringList &wellKnown);

    // The command of that identifier if it was shown; otherwise null.
    [[nodiscard]] const gesturewidget::RememberedCommand *find(const QString &identifier) const;
    // The command's name, see CommandNames; empty when it is not known.
    [[nodiscard]] QString captionOf(const QString &identifier) const;
    // Finds the command that a person means by its identifier, by the name of its action, by its
    // caption, by its name as in "Line > 2 Points", or by the way from the menu down, as in
    // "menu/caption". Letter case and dots at the end of a caption do not count.
    // Returns an empty text and fills `identifier`, or returns one line that says why the text
    // means no command or several. While nothing was ever shown, every text is an identifier.
    [[nodiscard]] QString resolve(const QString &text, const QString &program,
                                  QString &identifier) const;
    // Returns whether resolve() can tell if the program has a command of that identifier.
    [[nodiscard]] bool canJudge(const QString &identifier) const
    {
        return !m_shown.isEmpty() || m_wellKnown.contains(identifier);
    }
    // The commands that were shown, in the order in which they were first seen.
    [[nodiscard]] const QVector<gesturewidget::RememberedCommand> &shown() const { return m_shown; }
    // The commands that were shown, by menu or toolbar, in the order in which they were first seen.
    // Those that are alone in theirs are together in a last one, "Others".
    struct Menu
    {
        QString caption;
        QVector<const gesturewidget::RememberedCommand *> commands; // of this object
    };
    [[nodiscard]] QVector<Menu> menus() const;
    // All commands that were shown, by menu and toolbar. Fails when none was.
    [[nodiscard]] Outcome list(const QString &program) const;
    // The same as JSON, in the order in which they were first seen.
    [[nodiscard]] Outcome listAsJson(const QString &program) const;

private:
    // `command` is one of those that were shown.
    [[nodiscard]] QString nameOf(const gesturewidget::RememberedCommand &command) const;

    QVector<gesturewidget::RememberedCommand> m_shown;
    QStringList m_names; // of those
    QHash<QString, int> m_places; // among those, by identifier
    QStringList m_wellKnown;
};

} // namespace launcher
