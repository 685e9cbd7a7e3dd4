#pragma once

#include <utility>

// Calls into the host. What the host throws ends here: it has nobody to go to, since a
// module reports no errors, and one call that failed must not keep the others from being
// made, least of all those that take registrations back.
template <class Call> void hostCall(Call &&call) noexcept
{
    try {
        std::forward<Call>(call)();
    } catch (...) {
        // The host knows what it threw; the module carries on without that call's effect.
    }
}
