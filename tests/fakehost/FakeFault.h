// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <stdexcept>

namespace tests {

// Makes one call into the fake host throw std::runtime_error, whichever object it goes to. In
// force from construction to destruction, one at a time.
//
//     bool reached = true;
//     for (int call = 0; reached; ++call) {
//         const FakeFault fault(call);
//         useTheHost();
//         reached = fault.wasReached();
//     }
class FakeFault
{
public:
    Q_DISABLE_COPY_MOVE(FakeFault)

    // `call` counts from 0 the calls that follow.
    explicit FakeFault(int call) { s_callsLeft = call; }
    ~FakeFault() { s_callsLeft = kNone; }

    // True if enough calls were made and one threw.
    [[nodiscard]] bool wasReached() const { return s_callsLeft == kReached; }

    // Every operation of the fake host begins with this.
    static void pass()
    {
        if (s_callsLeft < 0)
            return;
        if (s_callsLeft-- > 0)
            return;
        s_callsLeft = kReached;
        throw std::runtime_error("the fake host was told to throw");
    }

private:
    static constexpr int kNone = -1;
    static constexpr int kReached = -2;
    static inline int s_callsLeft = kNone;
};

// The same as an expression, for operations of one line.
template <class Value> const Value &passed(const Value &value)
{
    FakeFault::pass();
    return value;
}

} // namespace tests
