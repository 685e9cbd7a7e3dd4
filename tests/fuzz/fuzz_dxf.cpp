// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// A drawing of the sketchpad: any file is refused with a sentence or read, and what was read can be
// written and read again.

#include "examples/sketchpad/DxfFile.h"
#include "examples/sketchpad/DxfFilter.h"
#include "tests/fuzz/Fuzz.h"

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    fuzz::keepQuiet();
    const QByteArray text = fuzz::bytes(data, size);
    static_cast<void>(DxfFilter(text));

    QString error;
    const auto sheet = dxf::read(fuzz::file(QStringLiteral("a.dxf"), text), &error);
    if (!sheet) {
        fuzz::check(!error.isEmpty(), "a refusal has a reason");
        return 0;
    }
    const QString copy = fuzz::folder() + QStringLiteral("/b.dxf");
    fuzz::check(dxf::write(*sheet, copy, &error), "what was read can be written");
    fuzz::check(dxf::read(copy, &error).has_value(), "what was written can be read");
    return 0;
}
