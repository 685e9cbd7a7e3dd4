// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "launcher/Outcome.h"
#include "launcher/sheet/SheetContent.h"

#include <QString>

namespace launcher {

struct Bindings;
class KnownCommands;

// The title of a ring: the program alone, or "FreeCAD, Sketcher" for the ring of a task.
[[nodiscard]] QString ringTitle(const QString &program, const QString &task, const KnownCommands &known);

// The sheet's content for the scheme in use. `title` is a ringTitle(), `usualTrigger` is the trigger of
// the program's profile.
[[nodiscard]] SheetContent sheetContent(const QString &title, const Bindings &bindings,
                                        const KnownCommands &known, const QString &usualTrigger);

// Starts `drawer`, the path of mouse-gestures-sheet, and writes the PDF that it draws to `path`, in
// one step. `path` must end in ".pdf".
[[nodiscard]] Outcome printSheet(const SheetContent &content, const QString &drawer,
                                 const QString &path);

} // namespace launcher
