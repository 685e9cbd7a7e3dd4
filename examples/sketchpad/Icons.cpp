// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "examples/sketchpad/Icons.h"

#include <QHash>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <QStringList>

namespace icons {
namespace {

// The colours are readable on a light ground. On a dark or grey one, such as the ring, the
// light rim around each stroke makes them so.
const QColor kInk(0x4d, 0x5d, 0x74);
const QColor kBlue(0x1f, 0x76, 0xcc);
const QColor kOrange(0xf0, 0x8a, 0x24);
const QColor kPaper(0xf7, 0xf9, 0xfc);
const QColor kRim(0xff, 0xff, 0xff, 0xd0);

// The icons on a square of 24 units, y downwards, as strokes separated by semicolons. The
// first letter is the colour: i grey, b blue, o orange. An f after it fills the shape, a -
// dashes the line. Then comes the shape:
//   p x y x y ...     a line through the points; a z closes it
//   c x y r           a circle
//   a x y r from by   an arc, degrees counter-clockwise
//   g x y             a grip: a small filled square
QString strokes(const QString &name)
{
    static const QHash<QString, QString> all{
        {QStringLiteral("mainWindow"),
         QStringLiteral("if p 3 3 21 3 21 21 3 21 z;b c 13 11 5;o p 6 18 18 6;g 6 18")},
        {QStringLiteral("fileNew"), QStringLiteral("if p 6 3 14 3 18 7 18 21 6 21 z;i p 14 3 14 7 18 7;"
                                                   "o p 9 14 15 14;o p 12 11 12 17")},
        {QStringLiteral("fileNewWindow"),
         QStringLiteral("if p 3 5 21 5 21 20 3 20 z;b p 3 9 21 9;o p 9 14.5 15 14.5;"
                        "o p 12 11.5 12 17.5")},
        {QStringLiteral("fileClose"), QStringLiteral("if p 3 5 21 5 21 20 3 20 z;b p 3 9 21 9;"
                                                     "o p 9.5 12 14.5 17;o p 14.5 12 9.5 17")},
        {QStringLiteral("fileOpen"), QStringLiteral("if p 3 19 3 5 9 5 11 8 19 8 19 11;"
                                                    "bf p 3 19 7 11 22 11 18 19 z")},
        {QStringLiteral("fileSave"),
         QStringLiteral("bf p 4 4 17 4 20 7 20 20 4 20 z;i p 8 4 8 9 15 9 15 4;"
                        "i p 7 20 7 13 17 13 17 20")},
        {QStringLiteral("fileSaveAs"),
         QStringLiteral("bf p 4 4 17 4 20 7 20 20 4 20 z;i p 8 4 8 9 15 9 15 4;"
                        "of p 10 20 11 16 19 8 22 11 14 19 z")},
        {QStringLiteral("editUndo"), QStringLiteral("b a 12 14 7 -20 200;b p 2 10 5 16 10 12")},
        {QStringLiteral("editRedo"), QStringLiteral("b a 12 14 7 0 200;b p 22 10 19 16 14 12")},
        {QStringLiteral("editErase"), QStringLiteral("i p 3 21 21 21;of p 5 15 14 5 20 10 12 19 8 19 z;"
                                                     "o p 9 10 16 15")},
        {QStringLiteral("editSelectAll"),
         QStringLiteral("b- p 4 4 20 4 20 20 4 20 z;i p 8 15 15 8;i c 15 15 2")},
        {QStringLiteral("viewZoomBounds"),
         QStringLiteral("b p 3 8 3 3 8 3;b p 16 3 21 3 21 8;b p 21 16 21 21 16 21;"
                        "b p 8 21 3 21 3 16;if c 11 11 4;i p 14 14 18 18")},
        {QStringLiteral("viewZoomIn"),
         QStringLiteral("bf c 10 10 7;i p 15 15 21 21;o p 7 10 13 10;o p 10 7 10 13")},
        {QStringLiteral("viewZoomOut"), QStringLiteral("bf c 10 10 7;i p 15 15 21 21;o p 7 10 13 10")},
        {QStringLiteral("viewGrid"),
         QStringLiteral("i p 3 8 21 8;i p 3 16 21 16;i p 8 3 8 21;i p 16 3 16 21;"
                        "g 16 8")},
        {QStringLiteral("viewFullScreen"),
         QStringLiteral("b p 4 9 4 4 9 4;b p 15 4 20 4 20 9;b p 20 15 20 20 15 20;"
                        "b p 9 20 4 20 4 15;o p 5 5 9 9;o p 19 19 15 15")},
        {QStringLiteral("drawLine"), QStringLiteral("b p 5 19 19 5;g 5 19;g 19 5")},
        {QStringLiteral("drawCircle"), QStringLiteral("b c 12 12 8.5;i- p 12 12 18 6;g 12 12")},
        {QStringLiteral("drawText"),
         QStringLiteral("b p 5 18 11 4 13 4 19 18;b p 8 13 16 13;o p 4 21.5 20 21.5")},
        {QStringLiteral("modifyOffset"),
         QStringLiteral("i p 5 21 5 9 9 5 21 5;b p 12 21 12 14 14 12 21 12;"
                        "o p 6.5 6.5 12 12;g 12.5 12.5")},
        {QStringLiteral("modifyCopy"), QStringLiteral("if c 9 9 5.5;bf c 15 15 5.5;g 15 15")},
        {QStringLiteral("modifyTrim"),
         QStringLiteral("i p 16 3 10 21;b p 3 12 12.5 12;o- p 15 12 22 12")},
        {QStringLiteral("toolsSnap"), QStringLiteral("i p 4 20 12 12 21 14;o p 8 8 16 8 16 16 8 16 z")},
        {QStringLiteral("toolsStop"), QStringLiteral("o p 6 6 18 18;o p 18 6 6 18")},
        {QStringLiteral("helpAbout"), QStringLiteral("bf c 12 12 9;b p 12 11 12 17;g 12 7.5")},
    };
    return all.value(name);
}

void draw(QPainter &painter, const QString &stroke, bool rim)
{
    const QStringList words = stroke.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const QString &style = words.first();
    const auto number = [&words](int index) { return words.value(index).toDouble(); };
    if (style == QLatin1String("g")) {
        const double half = rim ? 3 : 2;
        painter.fillRect(QRectF(number(1) - half, number(2) - half, 2 * half, 2 * half),
                         rim ? kRim : kOrange);
        return;
    }
    const QColor ink = style.startsWith(QLatin1Char('i')) ? kInk
                     : style.startsWith(QLatin1Char('b')) ? kBlue
                                                          : kOrange;
    QPainterPath path;
    if (words.at(1) == QLatin1String("p")) {
        path.moveTo(number(2), number(3));
        for (int i = 4; i + 1 < words.size(); i += 2)
            path.lineTo(number(i), number(i + 1));
        if (words.last() == QLatin1String("z"))
            path.closeSubpath();
    } else {
        const double radius = number(4);
        const QRectF square(number(2) - radius, number(3) - radius, 2 * radius, 2 * radius);
        const bool isCircle = words.at(1) == QLatin1String("c");
        path.arcMoveTo(square, number(5));
        path.arcTo(square, number(5), isCircle ? 360 : number(6));
    }
    if (style.endsWith(QLatin1Char('f')))
        painter.fillPath(path, kPaper);
    QPen pen(rim ? kRim : ink, rim ? 4 : 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    if (style.endsWith(QLatin1Char('-')) && !rim) {
        pen.setCapStyle(Qt::FlatCap);
        pen.setDashPattern({1.25, 1});
    }
    painter.strokePath(path, pen);
}

} // namespace

QIcon named(const QString &name)
{
    QIcon icon;
    const QStringList list = strokes(name).split(QLatin1Char(';'), Qt::SkipEmptyParts);
    for (const int size : {16, 24, 32, 48, 64}) {
        QPixmap pixmap(size, size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(size / 24.0, size / 24.0);
        for (const bool rim : {true, false}) {
            for (const QString &stroke : list)
                draw(painter, stroke, rim);
        }
        painter.end();
        if (!list.isEmpty())
            icon.addPixmap(pixmap);
    }
    return icon;
}

} // namespace icons
