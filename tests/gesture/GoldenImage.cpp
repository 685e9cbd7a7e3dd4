// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/gesture/GoldenImage.h"

#include <QCoreApplication>
#include <QDir>

#include <algorithm>
#include <cstdlib>

namespace tests {
namespace {

int farthestChannel(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b))});
}

} // namespace

QString compareWithGolden(const QImage &picture, const QString &name, const Tolerance &tolerance)
{
    const QString path = QStringLiteral(TESTS_SOURCE_DIR "/gesture/golden/%1.png").arg(name);
    // The format of a file.
    const QImage found = picture.convertToFormat(QImage::Format_ARGB32);
    if (qEnvironmentVariableIntValue("GESTUREWIDGET_UPDATE_GOLDEN") == 1)
        return found.save(path) ? QString() : QStringLiteral("cannot write %1").arg(path);

    const QImage golden = QImage(path).convertToFormat(QImage::Format_ARGB32);
    QString wrong;
    if (golden.isNull()) {
        wrong = QStringLiteral("there is no %1").arg(path);
    } else if (golden.size() != found.size()) {
        wrong = QStringLiteral("%1 x %2 pixels").arg(found.width()).arg(found.height());
    } else {
        int off = 0;
        int farthest = 0;
        for (int y = 0; y < found.height(); ++y) {
            for (int x = 0; x < found.width(); ++x) {
                const int distance = farthestChannel(found.pixel(x, y), golden.pixel(x, y));
                farthest = std::max(farthest, distance);
                if (distance > tolerance.perChannel)
                    ++off;
            }
        }
        if (off > tolerance.pixels * found.width() * found.height())
            wrong = QStringLiteral("%1 pixels differ, by up to %2 of 255").arg(off).arg(farthest);
    }
    if (wrong.isEmpty())
        return {};
    const QString kept =
        QDir(QCoreApplication::applicationDirPath()).filePath(name + QStringLiteral("-found.png"));
    found.save(kept);
    return QStringLiteral("%1: %2; see %3").arg(name, wrong, kept);
}

} // namespace tests
