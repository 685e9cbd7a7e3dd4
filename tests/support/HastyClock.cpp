// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/support/HastyClock.h"

#include <atomic>
#include <cstdlib>
#include <ctime>

#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr long kStep = 5'000'000; // nanoseconds
constexpr long kSecond = 1'000'000'000;

std::atomic<bool> isHasty{false};
std::atomic<long> ahead{0}; // nanoseconds; stays when the haste ends, so that time never runs back

} // namespace

namespace tests {

HastyClock::HastyClock()
{
    isHasty = true;
}

HastyClock::~HastyClock()
{
    isHasty = false;
}

void HastyClock::keepTestsRunning()
{
    setenv("QTEST_FUNCTION_TIMEOUT", "2000000000", 1); // milliseconds
}

} // namespace tests

// Takes the place of the C library's function for Qt too.
extern "C" __attribute__((visibility("default"))) int clock_gettime(clockid_t clock,
                                                                    timespec *time) noexcept
{
    const auto result = static_cast<int>(syscall(SYS_clock_gettime, clock, time));
    if (result != 0 || clock != CLOCK_MONOTONIC)
        return result;
    const long further = isHasty ? ahead += kStep : ahead.load();
    const long nanoseconds = time->tv_nsec + further % kSecond;
    time->tv_sec += further / kSecond + nanoseconds / kSecond;
    time->tv_nsec = nanoseconds % kSecond;
    return 0;
}
