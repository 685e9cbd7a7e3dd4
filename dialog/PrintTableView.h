// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QTableView>

class QPainter;
class QRect;

// A table view that can paint all of its cells anywhere, also those that are scrolled away.
class PrintTableView : public QTableView
{
    Q_OBJECT

public:
    using QTableView::QTableView;

    // Paints every cell, scaled so that all rows and columns together fill `area`. The
    // painter keeps the scale. Without rows nothing is painted and the vertical scale that
    // is left behind is infinite.
    void printTable(QPainter *painter, const QRect &area);
};
