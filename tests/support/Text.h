// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace tests {

// A string literal as a QString, for texts that are compared many times over.
[[nodiscard]] inline QString text(const char *latin1)
{
    return QString::fromLatin1(latin1);
}

} // namespace tests
