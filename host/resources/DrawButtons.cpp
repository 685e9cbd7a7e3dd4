// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// Draws the images of dialog buttons that the host offers:
//
//     gesturewidget_drawbuttons DIRECTORY
//
// writes ok.png, cancel.png and help.png, 32 pixels wide, and each at twice the size for
// high-density screens. All lines are placed so that half the size, 16 pixels, is sharp too.

#include <QColor>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QString>

#include <cstdio>

namespace {

constexpr int kSide = 32;

struct Button
{
    const char *name;
    QColor top;
    QColor bottom;
    QColor rim;
    QPainterPath mark; // drawn as a line
    QPointF dot; // drawn as a dot, unless it is null
};

QPainterPath tick()
{
    QPainterPath path(QPointF(9, 16.5));
    path.lineTo(14, 21.5);
    path.lineTo(23, 11);
    return path;
}

QPainterPath cross()
{
    QPainterPath path(QPointF(11, 11));
    path.lineTo(21, 21);
    path.moveTo(21, 11);
    path.lineTo(11, 21);
    return path;
}

QPainterPath hook()
{
    QPainterPath path(QPointF(11, 12.5));
    path.cubicTo(11, 9.5, 13.2, 8, 16, 8);
    path.cubicTo(19, 8, 21, 9.7, 21, 12.3);
    path.cubicTo(21, 15.6, 16, 15.4, 16, 19);
    return path;
}

QImage drawn(const Button &button, int scale)
{
    QImage image(kSide * scale, kSide * scale, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);

    QLinearGradient face(0, 2, 0, 30);
    face.setColorAt(0, button.top);
    face.setColorAt(1, button.bottom);
    painter.setBrush(face);
    painter.setPen(QPen(button.rim, 2));
    painter.drawEllipse(QRectF(2, 2, 28, 28));

    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::white, 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(button.mark);
    if (!button.dot.isNull()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::white);
        painter.drawEllipse(button.dot, 2.4, 2.4);
    }
    return image;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 2) {
        std::fputs("usage: gesturewidget_drawbuttons DIRECTORY\n", stderr);
        return 1;
    }
    const Button buttons[] = {
        {"ok", QColor(76, 178, 100), QColor(38, 134, 64), QColor(24, 100, 46), tick(), {}},
        {"cancel", QColor(226, 92, 80), QColor(188, 48, 40), QColor(140, 30, 26), cross(), {}},
        {"help", QColor(84, 150, 222), QColor(40, 102, 184), QColor(24, 72, 140), hook(), {16, 24.4}},
    };
    for (const Button &button : buttons) {
        for (const int scale : {1, 2}) {
            const QString file = QStringLiteral("%1/%2%3.png")
                                     .arg(QString::fromLocal8Bit(argv[1]), QLatin1String(button.name),
                                          scale == 1 ? QString() : QStringLiteral("@2x"));
            if (!drawn(button, scale).save(file, "PNG")) {
                std::fprintf(stderr, "gesturewidget_drawbuttons: cannot write %s\n", qPrintable(file));
                return 1;
            }
        }
    }
    return 0;
}
