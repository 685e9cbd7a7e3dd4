// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

namespace tests {

// Makes the time of the whole process run ahead: each look at the monotonic clock takes it 5 ms
// further. What waits for a time to pass, such as the ring's last frame, then waits for next to
// nothing. In force from construction to destruction, one at a time.
//
// A test program that uses it links tests_hastyclock, and says in its initMain() that QtTest's own
// clock must not end it. CTest's does.
class HastyClock
{
public:
    HastyClock();
    ~HastyClock();
    static void keepTestsRunning();

    HastyClock(const HastyClock &) = delete;
    HastyClock &operator=(const HastyClock &) = delete;
};

} // namespace tests
