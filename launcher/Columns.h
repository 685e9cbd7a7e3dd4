// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

// Text in a terminal, where Chinese and Japanese characters take two columns.
namespace launcher {

[[nodiscard]] int columnsOf(const QString &text);

// The lines of a text, broken where its script allows it, so that each has at most `columns` columns
// where that is possible. A line break in the text stays.
[[nodiscard]] QStringList wrapped(const QString &text, int columns);

// The text followed by blanks up to `columns` columns.
[[nodiscard]] QString padded(const QString &text, int columns);

} // namespace launcher
