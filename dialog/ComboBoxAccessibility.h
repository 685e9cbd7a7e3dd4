// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

// Makes screen readers read the dialog's drop-downs right: their label as the name and what
// they show as the value. On this system Qt gives the value for both, and nothing at all for an
// entry that is an icon.
//
// Affects only the drop-downs of this dialog, not those of the program around it. It works from
// construction to destruction, because Qt must not call into a module that is unloaded.
class ComboBoxAccessibility
{
public:
    Q_DISABLE_COPY_MOVE(ComboBoxAccessibility)
    ComboBoxAccessibility();
    ~ComboBoxAccessibility();
};
