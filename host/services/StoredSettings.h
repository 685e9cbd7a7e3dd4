// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class CHxProfileStore;

namespace gesturewidget {

// Returns a text of the profile; empty if `store` is null or has none.
[[nodiscard]] QString storedText(CHxProfileStore *store, const QString &section, const QString &key);

// Returns whether the person has gestures on, as they are at first.
[[nodiscard]] bool areGesturesOn(CHxProfileStore *store);

} // namespace gesturewidget
