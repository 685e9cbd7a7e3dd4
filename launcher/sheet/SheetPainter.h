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

// Paints one page: a title, the ring with its labels, and a table of the directions below.
class SheetPainter
{
public:
    explicit SheetPainter(const launcher::SheetContent &content);

    // `page` is the paper without its margins, in pixels; a millimetre has `millimetre` pixels.
    void paint(QPainter &painter, const QRectF &page, double millimetre) const;

private:
    [[nodiscard]] bool hasIcons() const;
    [[nodiscard]] double paintTitle(QPainter &painter, const QRectF &page, double mm) const;
    void paintTable(QPainter &painter, const QRectF &area, double mm) const;
    void paintRow(QPainter &painter, const QRectF &row, const launcher::SheetContent::Command &command,
                  double mm) const;

    const launcher::SheetContent &m_content;
    QFont m_font;
};

} // namespace sheet
