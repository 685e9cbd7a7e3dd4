// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// Draws the images that are named on the command line:
//
//     gesturewidget_draw DIRECTORY NAME.png...
//
// "NAME@2x.png" and "NAME@3x.png" are the same image with two and three times the pixels each
// way, as Qt names them. Exits with 1 if a name stands for no image or a file cannot be written.

#include "resources/draw/Arrow.h"
#include "resources/draw/Ring.h"

#include <QImage>
#include <QRegularExpression>
#include <QString>
#include <QStringList>

#include <cstdio>

namespace {

// Qt's "quality" of a PNG: 0 compresses most and loses nothing.
constexpr int kSmallest = 0;

struct Sector
{
    int count = 0; // 0 when there is none
    int index = 0;
};

// The sector behind the part of a name that follows "gestureregion".
[[nodiscard]] Sector sectorOfRegion(const QString &region)
{
    static const QStringList sides{QStringLiteral("_top"), QStringLiteral("_left"),
                                   QStringLiteral("_bottom"), QStringLiteral("_right")};
    if (sides.contains(region))
        return {4, static_cast<int>(sides.indexOf(region))};
    const int number = region.toInt();
    if (number < 1 || number > 8)
        return {};
    return {8, (number + 5) % 8}; // region 3 is up, region 1 is right
}

[[nodiscard]] QImage regionImage(const QString &name, int ratio)
{
    static const QRegularExpression pattern(
        QStringLiteral("^gestureregion(_top|_left|_bottom|_right|[1-8])(_text_checked)?$"));
    const QRegularExpressionMatch match = pattern.match(name);
    const Sector sector = sectorOfRegion(match.captured(1));
    if (!match.hasMatch() || sector.count == 0)
        return {};
    return match.captured(2).isEmpty()
             ? draw::sectorHighlightWithSeparators(sector.count, sector.index, ratio)
             : draw::sectorChecked(sector.count, sector.index, ratio);
}

[[nodiscard]] QImage numberedImage(const QString &name, int ratio)
{
    static const QRegularExpression pattern(QStringLiteral("^targetDonut(Over)?_(?:4[0-3]|8[0-7])$"));
    const QRegularExpressionMatch match = pattern.match(name);
    if (!match.hasMatch())
        return {};
    const int count = name.at(name.size() - 2).digitValue();
    const int index = name.back().digitValue();
    return match.captured(1).isEmpty() ? draw::sectorPlain(count, index, ratio)
                                       : draw::sectorHighlight(count, index, ratio);
}

// The image of a name without its ".png"; null if the name stands for none.
[[nodiscard]] QImage imageNamed(const QString &fullName)
{
    static const QRegularExpression enlarged(QStringLiteral("^(.*)@([23])x$"));
    const QRegularExpressionMatch match = enlarged.match(fullName);
    const QString name = match.hasMatch() ? match.captured(1) : fullName;
    const int ratio = match.hasMatch() ? match.captured(2).toInt() : 1;

    static const QStringList directions{QStringLiteral("up"),    QStringLiteral("up_left"),
                                        QStringLiteral("left"),  QStringLiteral("down_left"),
                                        QStringLiteral("down"),  QStringLiteral("down_right"),
                                        QStringLiteral("right"), QStringLiteral("up_right")};
    if (directions.contains(name))
        return draw::arrow(static_cast<int>(directions.indexOf(name)), ratio);
    if (name == QLatin1String("gesture_widget") || name == QLatin1String("backgroundDonut"))
        return draw::ringBackground(ratio);
    const QImage region = regionImage(name, ratio);
    return region.isNull() ? numberedImage(name, ratio) : region;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc < 3) {
        std::fputs("usage: gesturewidget_draw DIRECTORY NAME.png...\n", stderr);
        return 1;
    }
    const QString directory = QString::fromLocal8Bit(argv[1]);
    for (int i = 2; i < argc; ++i) {
        const QString file = QString::fromLocal8Bit(argv[i]);
        const QString suffix = QStringLiteral(".png");
        const QImage image = file.endsWith(suffix) ? imageNamed(file.chopped(suffix.size())) : QImage();
        if (image.isNull()) {
            std::fprintf(stderr, "gesturewidget_draw: no image is called %s\n", argv[i]);
            return 1;
        }
        if (!image.save(directory + QLatin1Char('/') + file, "PNG", kSmallest)) {
            std::fprintf(stderr, "gesturewidget_draw: cannot write %s/%s\n", argv[1], argv[i]);
            return 1;
        }
    }
    return 0;
}
