// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

// Holds the enumeration, so that `Four` and `Eight` stay out of the global namespace. The
// configuration dialog shows them under its own name, in this form:
//
//     class MgDonutDialogManager : public CHxDialog
//     {
//     public:
//         using DonutScheme = DonutSchemes::DonutScheme;
//         static constexpr DonutScheme Four = DonutSchemes::Four;
//         static constexpr DonutScheme Eight = DonutSchemes::Eight;
struct DonutSchemes
{
    // The number of sectors of the ring. Every value but 0 counts as eight sectors; the fixed
    // underlying type makes such values legal.
    enum DonutScheme : int { Four = 0, Eight = 1 };
};

// Also reached as DonutScheme::Four and DonutScheme::Eight.
using DonutScheme = DonutSchemes::DonutScheme;
