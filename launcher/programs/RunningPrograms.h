// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "launcher/programs/Subject.h"

#include <QList>
#include <QString>

namespace launcher {

// The processes of this user that run the program with gestures, by their numbers. A process counts
// if the program's file, or a script of that name, is what it runs, and the plug-in is in its memory.
// Costs one look at each process of the machine, a millisecond or two. `proc` is for tests.
[[nodiscard]] QList<qint64> runningWithGestures(const Subject &subject,
                                                const QString &proc = QStringLiteral("/proc"));

} // namespace launcher
