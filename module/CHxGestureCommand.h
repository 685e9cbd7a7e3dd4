// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/chx/CHxCommand.h"

// The command GESTURE, which opens the dialog in which gestures are configured.
class CHxGestureCommand : public CHxCommand
{
public:
    CHxGestureCommand() = default;
    ~CHxGestureCommand() override;

    // "_GESTURE".
    [[nodiscard]] OdString globalName() const override;
    // "GESTURE".
    [[nodiscard]] OdString localName() const override;
    // Runs the dialog until it is closed and always returns kNormal (5100). `context` is not used.
    int Execute(CHxCommandContext *context) override;
};
