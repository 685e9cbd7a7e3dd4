// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/chx/CHxString.h"

#include <QString>

namespace tests {

// A text of the host, to be compared and printed.
[[nodiscard]] inline QString text(const CHxString &string)
{
    return string.toQString();
}

} // namespace tests
