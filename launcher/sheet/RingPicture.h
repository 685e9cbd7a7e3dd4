// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "launcher/sheet/SheetContent.h"

#include <QFont>
#include <QRectF>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace sheet {

// The ring in the proportions and colours that it has under the pointer, with a label in each
// sector. It is drawn again, because an image for a screen is coarse on paper.
class RingPicture
{
public:
    RingPicture(const launcher::SheetContent &content, const QFont &font);

    // Paints into a square.
    void paint(QPainter &painter, const QRectF &square) const;

    // The room for a label: the largest box inside the sector less its margin. The unit is that in
    // which the whole ring is draw::kRingSize wide.
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
