#pragma once

#include <QImage>
#include <QString>

namespace tests {

// How far a picture may be from its golden image.
struct Tolerance
{
    int perChannel = 0; // of 255
    double pixels = 0.0; // the share of the pixels that may be farther off than that
};

// Compares a picture with tests/gesture/golden/NAME.png. Returns what is wrong, or an empty
// text. The picture found is then kept beside the program, under its name in the message.
//
// With GESTUREWIDGET_UPDATE_GOLDEN=1 in the environment the golden image is written instead.
[[nodiscard]] QString compareWithGolden(const QImage &picture, const QString &name,
                                        const Tolerance &tolerance = {});

} // namespace tests
