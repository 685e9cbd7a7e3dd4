#pragma once

#include "bindings/DonutScheme.h"

#include <QString>

// The fourteen keys of the settings and what they hold before anybody has chosen anything.
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

// What a key holds at first, as the binding container sees it; empty for a key that is none
// of the fourteen. "4" for activeScheme(), where the settings store says "8": the container
// asks for direction keys only, so the two never meet. Meant to stay different.
[[nodiscard]] QString initialValue(const QString &key);

} // namespace settingskeys
