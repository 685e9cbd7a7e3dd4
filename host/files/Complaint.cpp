// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/Complaint.h"

#include <cstdio>

namespace gesturewidget {

void complain(const QString &line)
{
    std::fprintf(stderr, "mouse gestures: %s\n", qPrintable(line.simplified()));
}

} // namespace gesturewidget
