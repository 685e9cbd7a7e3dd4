#pragma once

#include "launcher/Outcome.h"
#include "launcher/sheet/SheetContent.h"

#include <QString>

namespace launcher {

struct Bindings;
class KnownCommands;

// What to draw of the scheme in use. `usualTrigger` is that of the program's profile.
[[nodiscard]] SheetContent sheetContent(const QString &program, const Bindings &bindings,
                                        const KnownCommands &known, const QString &usualTrigger);

// Has `drawer`, the path of mouse-gestures-sheet, draw it, and writes that as PDF to `path`, in
// one step.
[[nodiscard]] Outcome printSheet(const SheetContent &content, const QString &drawer,
                                 const QString &path);

} // namespace launcher
