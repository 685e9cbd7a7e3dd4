// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>

namespace launcher {

// For texts that a person reads: Text::tr("..."). All of them are in the context "launcher". What is
// typed, such as names of options and directions, is not translated.
class Text
{
    Q_DECLARE_TR_FUNCTIONS(launcher)
};

} // namespace launcher
