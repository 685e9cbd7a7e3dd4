// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

class GuestWindow;

// What a person does in the drawing without making a gesture, for the program to log. False
// when there is no script of that name.
bool playEvents(const char *name, GuestWindow &window);
