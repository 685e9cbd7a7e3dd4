#pragma once

#include "launcher/sheet/SheetContent.h"

#include <QFont>
#include <QRectF>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace sheet {

// The ring as it opens under the pointer, drawn in the same proportions and colours, with a
// label in each sector. Drawn anew, since an image made for a screen is coarse on paper.
class RingPicture
{
public:
    RingPicture(const launcher::SheetContent &content, const QFont &font);

    // Into a square.
    void paint(QPainter &painter, const QRectF &square) const;

    // The room for a label in a sector, in units of which the whole ring is draw::kRingSize
    // wide: inside the sector, with a margin, and as large as that allows.
    [[nodiscard]] static QRectF labelBox(int count, int index);

private:
    void paintBand(QPainter &painter) const;
    void paintLabel(QPainter &painter, const QRectF &box, const launcher::SheetContent::Command &command,
                    double unit) const;
    void paintMiddle(QPainter &painter, const QRectF &circle, double unit) const;

    const launcher::SheetContent &m_content;
    QFont m_font;
};

} // namespace sheet
