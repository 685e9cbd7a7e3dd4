// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "launcher/sheet/SheetContent.h"

QT_BEGIN_NAMESPACE
class QPagedPaintDevice;
QT_END_NAMESPACE

namespace sheet {

// Sets the paper and its margins as a sheet wants them: Letter where people measure in inches, A4
// elsewhere. Returns false if the device refuses one of them.
bool setUpPage(QPagedPaintDevice &device);
// Draws the sheet on a PDF or on a printer with `resolution` pixels per inch. Returns whether the
// device took it.
[[nodiscard]] bool drawPage(const launcher::SheetContent &content, QPagedPaintDevice &device,
                            int resolution);

} // namespace sheet
