// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>
#include <QRectF>
#include <QString>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace sheet {

// A text that fits into a box. It gets the largest font size that fits, on several lines if that is
// allowed. If even the smallest size is too large, it is cut off with dots.
struct FittedText
{
    // `largest` and `smallest` are pixel sizes of `font`, `lines` is at least 1.
    FittedText(const QString &text, const QFont &font, const QSizeF &box, int largest, int smallest,
               int lines = 1);

    // Returns the text for a command's name, such as "Line > 2 Points". It is the last part, which says
    // most, if the whole name would be cut off or much smaller than that part.
    [[nodiscard]] static FittedText ofName(const QString &name, const QFont &font, const QSizeF &box,
                                           int largest, int smallest, int lines);

    // Paints it in the vertical middle of `box`: in the horizontal middle with Qt::AlignHCenter, from
    // the left without.
    void paint(QPainter &painter, const QRectF &box, Qt::Alignment alignment) const;

    QFont font; // has the chosen size
    QString text; // lines separated by line ends
    QSizeF size; // of the text
};

} // namespace sheet
