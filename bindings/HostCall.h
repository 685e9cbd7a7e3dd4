// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <utility>

// Calls into the host. An exception of the host ends here: a module reports no errors, and one
// failed call must not prevent the others. This matters most where registrations are removed. Returns
// whether the call came back without an exception.
template <class Call> bool hostCall(Call &&call) noexcept
{
    try {
        std::forward<Call>(call)();
        return true;
    } catch (...) {
        // The host knows what it threw; the module carries on without that call's effect.
        return false;
    }
}

// The same for a call that gives a value: `otherwise` if it threw.
template <class Value, class Call> Value hostValue(Value otherwise, Call &&call) noexcept
{
    hostCall([&] { otherwise = call(); });
    return otherwise;
}
