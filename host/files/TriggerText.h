// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>
#include <Qt>

// A trigger as a person writes it: a button, and before it the keys that are held with it, joined
// by "+": "right", "ctrl+right", "shift+alt+left". All names of buttons and keys are here; profiles
// use the same ones.
namespace gesturewidget {

// "left", "middle", "right", "back", "forward".
[[nodiscard]] QStringList buttonNames();
// "ctrl", "shift", "alt", "meta", in the order in which triggerText() writes them.
[[nodiscard]] QStringList modifierNames();
// The button or key of a name, in any case; "control" is "ctrl". Qt::NoButton and Qt::NoModifier
// for any other text.
[[nodiscard]] Qt::MouseButton buttonNamed(const QString &name);
[[nodiscard]] Qt::KeyboardModifier modifierNamed(const QString &name);

// Fills both and returns true. If the text names no trigger, leaves them and returns false. Letter
// case and the order of the keys do not matter.
[[nodiscard]] bool parseTrigger(const QString &text, Qt::MouseButton &button,
                                Qt::KeyboardModifiers &modifiers);
// Returns whether a person may choose it. False for the left button alone, with which people draw.
[[nodiscard]] bool isUsableTrigger(Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
// The text of a trigger; empty for a button that has no name here.
[[nodiscard]] QString triggerText(Qt::MouseButton button, Qt::KeyboardModifiers modifiers);

} // namespace gesturewidget
