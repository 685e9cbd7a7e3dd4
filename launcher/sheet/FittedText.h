#pragma once

#include <QFont>
#include <QRectF>
#include <QString>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace sheet {

// A text that is made to fit into a box: in the largest of some sizes, on several lines if
// allowed, and cut off with dots when even the smallest is too large.
struct FittedText
{
    // `largest` and `smallest` are pixel sizes of `font`, `lines` is at least 1.
    FittedText(const QString &text, QFont font, const QSizeF &box, int largest, int smallest,
               int lines = 1);

    // In the middle of `box` from top to bottom, `alignment` from left to right.
    void paint(QPainter &painter, const QRectF &box, Qt::Alignment alignment) const;

    QFont font; // of the size that was chosen
    QString text; // lines separated by line ends
    QSizeF size; // that it takes
};

} // namespace sheet
