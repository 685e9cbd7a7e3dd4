// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace gesturewidget {

// Keeps gestures off in a program whose last run died in their code, until a person switches them
// on again. So a program that they would make unusable can be used.
class LastRun
{
public:
    // Returns one line for the person if gestures must stay off; empty if they may start. Notes a
    // crash of the last run in the settings.
    [[nodiscard]] static QString obstacle(const QString &program, const QString &settings);
    // From now on, the next run will know whether this process died in the code of the gestures.
    // Does nothing until end() if it has been called before.
    static void watchThisOne(const QString &program, const QString &settings);
    // The application ends as it should, so the next run has nothing to know.
    static void end();
};

} // namespace gesturewidget
