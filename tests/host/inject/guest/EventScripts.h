// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

class GuestWindow;

// Does what a person may do in the drawing without making a gesture; the program logs it. Returns
// false if there is no script of that name.
bool playEvents(const char *name, GuestWindow &window);
