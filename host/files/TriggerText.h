#pragma once

#include <QString>
#include <Qt>

// What starts a gesture, as a person writes it: a button, before it the keys that are held
// with it, joined by "+": "right", "ctrl+right", "shift+alt+left".
namespace gesturewidget {

// Where the settings keep the one that somebody chose in place of the profile's. Empty
// means that nobody did.
[[nodiscard]] QString triggerSection();
[[nodiscard]] QString triggerKey();

// Fills both and returns true, or leaves them and returns false when the text names no
// trigger. Case does not matter, nor the order of the keys; "control" is "ctrl".
[[nodiscard]] bool parseTrigger(const QString &text, Qt::MouseButton &button,
                                Qt::KeyboardModifiers &modifiers);
// Whether it may be chosen: not the left button alone, with which people draw.
[[nodiscard]] bool isUsableTrigger(Qt::MouseButton button, Qt::KeyboardModifiers modifiers);
// The way back, keys in the order ctrl, shift, alt, meta.
[[nodiscard]] QString triggerText(Qt::MouseButton button, Qt::KeyboardModifiers modifiers);

} // namespace gesturewidget
