// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// Replaces DxfFile.cpp in a build without dxflib.
#include "examples/sketchpad/DxfFile.h"

namespace dxf {

bool isSupported()
{
    return false;
}

std::optional<Sheet> read(const QString &, QString *error)
{
    *error = QStringLiteral("This Sketchpad was built without support for DXF files.");
    return std::nullopt;
}

bool write(const Sheet &, const QString &, QString *error)
{
    *error = QStringLiteral("This Sketchpad was built without support for DXF files.");
    return false;
}

} // namespace dxf
