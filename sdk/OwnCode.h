// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "SdkExport.h"

#include <atomic>
#include <cstdint>

// Tells whose code the user-interface thread is running, for somebody who looks after a crash.
//
// Code of the gestures that Qt or the program calls begins with an OwnCode. Where such code calls
// the program, it holds a ProgramCode meanwhile:
//
//     bool Filter::eventFilter(QObject *receiver, QEvent *event)
//     {
//         const gesturewidget::OwnCode ours;
//         ...
//         {
//             const gesturewidget::ProgramCode theirs;
//             action->trigger();
//         }
//     }
//
// Both run on every event, so they only read and write memory. They are for the user-interface
// thread alone.
namespace gesturewidget {

using CodeMark = std::atomic<std::uint32_t>;

namespace codemark {

// 1 while code of the gestures is running, else 0.
GESTUREWIDGET_SDK_EXPORT extern CodeMark *current;

// For hosts: keeps the mark there from now on. With null, nobody can look at it.
GESTUREWIDGET_SDK_EXPORT void keepAt(CodeMark *place);

// For hosts: an event loop goes on, so whatever runs next is the program's until it says otherwise.
// The code that has started a nested loop waits meanwhile.
inline void eventLoopGoesOn()
{
    current->store(0, std::memory_order_relaxed);
}

} // namespace codemark

// Sets the mark for a scope.
template <std::uint32_t mark> class MarkedCode
{
public:
    MarkedCode()
        : m_before(codemark::current->load(std::memory_order_relaxed))
    {
        set(mark);
    }
    ~MarkedCode() { set(m_before); }
    MarkedCode(const MarkedCode &) = delete;
    MarkedCode &operator=(const MarkedCode &) = delete;

private:
    static void set(std::uint32_t value)
    {
        // The compiler moves nothing of the scope across this.
        std::atomic_signal_fence(std::memory_order_seq_cst);
        codemark::current->store(value, std::memory_order_relaxed);
        std::atomic_signal_fence(std::memory_order_seq_cst);
    }

    std::uint32_t m_before;
};

using OwnCode = MarkedCode<1>;
using ProgramCode = MarkedCode<0>;

} // namespace gesturewidget
