// Stands in for DxfFile.cpp where dxflib is missing.
#include "examples/sketchpad/DxfFile.h"

namespace dxf {

bool isSupported()
{
    return false;
}

std::optional<Sheet> read(const QString &, QString *error)
{
    *error = QStringLiteral("This Sketchpad was built without DXF files.");
    return std::nullopt;
}

bool write(const Sheet &, const QString &, QString *error)
{
    *error = QStringLiteral("This Sketchpad was built without DXF files.");
    return false;
}

} // namespace dxf
