#pragma once

#include "examples/sketchpad/Sheet.h"

#include <optional>

// Drawings as DXF files. Built without dxflib, nothing can be read or written.
namespace dxf {

[[nodiscard]] bool isSupported();

// The drawing in `path`; none, with a sentence in `error`, if it cannot be read.
[[nodiscard]] std::optional<Sheet> read(const QString &path, QString *error);

// Writes the drawing to `path`. The file that was there stays untouched unless all of the
// new one could be written; false then, with a sentence in `error`.
[[nodiscard]] bool write(const Sheet &sheet, const QString &path, QString *error);

} // namespace dxf
