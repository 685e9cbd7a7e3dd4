// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace tests {

// The file of one of the modules that tests/host/session/modules builds.
[[nodiscard]] inline QString stubModule(const QString &name)
{
    return QStringLiteral(STUB_MODULES_DIR "/%1.so").arg(name);
}

} // namespace tests
