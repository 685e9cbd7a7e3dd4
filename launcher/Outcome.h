// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

namespace launcher {

// The result of a task: what to print, or one line that says why it could not be done. A task that
// could not be done has changed nothing.
struct Outcome
{
    QByteArray output;
    QString complaint;

    [[nodiscard]] bool isDone() const { return complaint.isEmpty(); }
    [[nodiscard]] static Outcome failure(const QString &complaint) { return {{}, complaint}; }
};

} // namespace launcher
