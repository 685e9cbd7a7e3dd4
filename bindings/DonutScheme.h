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
    // How many sectors the donut has. Whoever reads a scheme takes every value but 0 for
    // the eight sectors; the underlying type is fixed to give such values a meaning.
    enum DonutScheme : int { Four = 0, Eight = 1 };
};

// Also reached as DonutScheme::Four and DonutScheme::Eight.
using DonutScheme = DonutSchemes::DonutScheme;
