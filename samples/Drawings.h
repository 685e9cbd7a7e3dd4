// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "examples/sketchpad/Sheet.h"

// The sample drawings.
namespace samples {

// A bearing bracket in three views, on an A3 sheet at 1:1. Millimetres.
[[nodiscard]] Sheet bracket();

// A flat of three rooms with its furniture. Millimetres.
[[nodiscard]] Sheet floorPlan();

} // namespace samples
