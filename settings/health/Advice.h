// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "launcher/doctor/Doctor.h"

#include <QList>
#include <QString>

namespace settings {

// Something that keeps gestures from working in a program, or how well they work, in plain words.
struct Advice
{
    enum class Remedy {
        None,
        EnableGestures // the settings can do it: gestures are off there
    };

    QString text; // what is wrong
    QString remedy; // what a person can do about it; may be empty
    Remedy action = Remedy::None;
};

// Everything that stands in the way of gestures; empty if nothing does. `title` is the name by which
// people know the program.
[[nodiscard]] QList<Advice> adviceFor(const launcher::Diagnosis &diagnosis, const QString &title);

} // namespace settings
