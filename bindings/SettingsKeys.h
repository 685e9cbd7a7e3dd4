// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "bindings/DonutScheme.h"

#include <QString>

// The fourteen keys of the settings and their initial values.
// All values are strings.
namespace settingskeys {

// "1" while gestures are on, "0" while they are off.
[[nodiscard]] const QString &enableMouseGesture();
// "4" or "8", the scheme in use.
[[nodiscard]] const QString &activeScheme();

constexpr int kFourCount = 4;
constexpr int kEightCount = 8;

// The key of a direction: "41" to "44" for the four scheme, "81" to "88" for the eight
// scheme. `number` is the direction index + 1. Empty for any other scheme or number.
[[nodiscard]] QString directionKey(DonutScheme scheme, int number);

// The initial value of a key for the binding container; empty for an unknown key. It is "4" for
// activeScheme(), but "8" in the settings store. The container asks for direction keys only, so
// the difference never shows. It is deliberate.
[[nodiscard]] QString initialValue(const QString &key);

} // namespace settingskeys
