// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/files/RememberedCommand.h"

#include <QString>
#include <QStringList>
#include <QVector>

namespace gesturewidget {

// Returns the names by which a person can tell commands apart, in the order of `commands`.
//
// A name is the way from the top menu's entry down: "Line > 2 Points" for the entry "2 Points" of
// the menu "Line" in the menu "Draw". It is the caption alone if that is unique and holds the words
// of the way, as "Zoom In" in a menu "Zoom". Where several would still have the same name, the
// top-level menu or the toolbar comes first, as in "Edit > Properties"; if that does not help
// either, the second one is called "Properties (2)".
//
// Names have no dots at their ends: "Open" for the entry "Open...". The ring cuts long names, and dots
// would take the place of letters.
[[nodiscard]] QStringList commandNames(const QVector<RememberedCommand> &commands);

// Returns the command's captions from the top-level menu or toolbar down: "Draw > Line > 2 Points".
// They have no dots at their ends either.
[[nodiscard]] QString fullWayOf(const RememberedCommand &command);

// Returns a caption, in the person's language, for a command that no menu has shown yet: the usual
// name of a command of the first bindings, such as "Line" for "ID_LINE"; else what the identifier
// says, "Something else" for "ID_SOMETHING_ELSE" and the last caption of a path.
//
// Programs that call this embed the host's translations.
[[nodiscard]] QString captionFrom(const QString &identifier);

// Returns a text with its first letter in upper case.
[[nodiscard]] QString capitalized(const QString &text);

// Returns a caption for comparing: without dots at the end, in one case.
[[nodiscard]] QString foldedCaption(const QString &caption);

// Returns the tip of a command with that name: the tip as it is if it holds the caption and the
// words of the way; otherwise the name, and behind it the tip if that says more. `tip` is one line
// and may be empty.
[[nodiscard]] QString namedTip(const RememberedCommand &command, const QString &name);

// Returns whether a tip says no more than the caption, perhaps with a shortcut in brackets.
[[nodiscard]] bool repeatsCaption(const QString &tip, const QString &caption);

} // namespace gesturewidget
