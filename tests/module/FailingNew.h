// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

namespace tests {

// A program that has FailingNew.cpp among its sources has this operator new: each call counts down
// and throws std::bad_alloc at 0. Nothing fails while the count is negative, as it is at first.
extern int newsUntilFailure;

} // namespace tests
