// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <vector>

class GuestWindow;

// The steps that all runs of the guest share.

constexpr int kPatience = 20000; // milliseconds that a step may take

// Writes a line to standard output.
void say(const char *text);
void sayWhether(const char *text, bool holds);

// Calls `then` from the event loop when `holds` returns true. If that takes too long, the program
// ends with the status 90.
void when(const std::function<bool()> &holds, const std::function<void()> &then);

struct Step
{
    std::function<bool()> holds;
    std::function<void()> then;
};
// Does the same for one step after the other, then quits.
void runSteps(const std::vector<Step> &steps);

[[nodiscard]] bool ringIsOpen();
// Presses in the window's view and drags until the ring opens.
void openRing(GuestWindow &window);
// Performs a whole gesture to the right.
void runGesture(GuestWindow &window);
