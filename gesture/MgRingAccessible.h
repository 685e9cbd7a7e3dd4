// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAccessibleWidget>

class MgDonutDialogPVStyleImpl;

// Describes the ring to assistive programs: it is a popup menu. Its description is what the lit
// sector would run.
class MgRingAccessible : public QAccessibleWidget
{
public:
    explicit MgRingAccessible(MgDonutDialogPVStyleImpl *ring);

    // Makes Qt ask this class about rings from now on. Further calls do nothing.
    static void install();
};
