// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>

// Common to all fuzz targets. A target is one source with LLVMFuzzerTestOneInput(). It is linked to
// libFuzzer, or to Replay.cpp where that is not available.

// Called with any bytes. Returns 0. A fault ends the program.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace fuzz {

// Ends the program with a line on standard error unless `isTrue`.
void check(bool isTrue, const char *expectation);

[[nodiscard]] QByteArray bytes(const std::uint8_t *data, std::size_t size);

// A folder that is empty at the start of the program and removed at its end. It is in memory where
// the system offers that.
[[nodiscard]] QString folder();
// Writes a file in that folder and returns its path.
[[nodiscard]] QString file(const QString &name, const QByteArray &content);

// The project writes at most one line about a damaged file to standard error, for each input here.
// Call it at the start of a target that reads files.
void keepQuiet();

} // namespace fuzz
