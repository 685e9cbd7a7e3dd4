// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QString>

namespace tests {

// The allowed difference between a picture and its golden image.
struct Tolerance
{
    int perChannel = 0; // of 255
    double pixels = 0.0; // the share of the pixels that may be farther off than that
};

// Compares a picture with tests/gesture/golden/NAME.png. Returns an empty text if they match.
// Otherwise it returns what is wrong and saves the picture beside the program; the message names
// the file.
//
// With GESTUREWIDGET_UPDATE_GOLDEN=1 in the environment it writes the golden image instead.
[[nodiscard]] QString compareWithGolden(const QImage &picture, const QString &name,
                                        const Tolerance &tolerance = {});

} // namespace tests
