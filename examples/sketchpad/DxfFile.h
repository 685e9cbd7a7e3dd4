// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "examples/sketchpad/Sheet.h"

#include <optional>

// Drawings as DXF files. Without dxflib, both functions fail.
namespace dxf {

[[nodiscard]] bool isSupported();

// Returns the drawing in `path`. If it cannot be read, returns none and sets `error` to a
// sentence.
[[nodiscard]] std::optional<Sheet> read(const QString &path, QString *error);

// Writes the drawing to `path`. If not all of it can be written, the old file stays as it was;
// returns false and sets `error` to a sentence.
[[nodiscard]] bool write(const Sheet &sheet, const QString &path, QString *error);

} // namespace dxf
