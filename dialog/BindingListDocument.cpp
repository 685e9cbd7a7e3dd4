// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "dialog/BindingListDocument.h"

#include <QAbstractItemModel>
#include <QColor>
#include <QFont>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

#include <algorithm>
#include <memory>

namespace {

constexpr int kIconSize = 32; // pixels, width and height
constexpr int kEmptyCellMargin = 8; // points, above and below a cell without text

// The program's own font if the model does not answer with a font.
QFont fontOf(const QVariant &value)
{
    return value.userType() == qMetaTypeId<QFont>() ? value.value<QFont>() : QFont();
}

// These roles may hold a colour or a brush. Invalid for anything else.
QColor colorOf(const QVariant &value)
{
    return value.value<QColor>();
}

QTextCharFormat charFormat(const QVariant &font, const QVariant &foreground)
{
    QTextCharFormat format;
    format.setFont(fontOf(font));
    format.setForeground(QBrush(colorOf(foreground), Qt::SolidPattern));
    return format;
}

// Gives a cell its background and centres its content in the row.
void setUpCell(QTextTableCell cell, const QColor &background)
{
    QTextCharFormat format = cell.format();
    format.setBackground(background);
    format.setVerticalAlignment(QTextCharFormat::AlignMiddle);
    cell.setFormat(format);
}

// The image is centred on the line of the text.
void insertImage(QTextCursor cursor, const QImage &image)
{
    const int start = cursor.position();
    cursor.insertImage(image);
    cursor.setPosition(start, QTextCursor::KeepAnchor);
    QTextCharFormat format;
    format.setVerticalAlignment(QTextCharFormat::AlignMiddle);
    cursor.mergeCharFormat(format);
}

// Always full size. A smaller icon is centred.
QImage render(const QIcon &icon)
{
    QImage image(kIconSize, kIconSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    icon.paint(&painter, image.rect(), Qt::AlignCenter, QIcon::Normal, QIcon::Off);
    return image;
}

void fillHeader(const QAbstractItemModel &model, int column, const QTextTableCell &cell)
{
    const auto header = [&model, column](int role) {
        return model.headerData(column, Qt::Horizontal, role);
    };
    setUpCell(cell, QColor(QStringLiteral("#dfdfdf")));
    cell.firstCursorPosition().insertText(header(Qt::DisplayRole).toString(),
                                          charFormat(header(Qt::FontRole), header(Qt::ForegroundRole)));
}

void fillCell(const QModelIndex &index, const QTextTableCell &cell)
{
    const bool odd = index.row() % 2 != 0;
    const QColor background = colorOf(index.data(Qt::BackgroundRole));
    setUpCell(cell, background.isValid()
                        ? background
                        : QColor(odd ? QStringLiteral("#e1e1e1") : QStringLiteral("#ffffff")));

    QString text = index.data(Qt::DisplayRole).toString();
    QTextBlockFormat block;
    // Trimming only decides the block format. The printed text keeps its white space.
    if (text.trimmed().isEmpty()) {
        block.setTopMargin(kEmptyCellMargin);
        block.setBottomMargin(kEmptyCellMargin);
    } else {
        block.setTopMargin(0);
        block.setBottomMargin(0);
        block.setAlignment(Qt::Alignment(index.data(Qt::TextAlignmentRole).toInt()));
    }
    QTextCursor cursor = cell.firstCursorPosition();
    cursor.setBlockFormat(block);

    const auto icon = index.data(Qt::DecorationRole).value<QIcon>();
    if (!icon.isNull()) {
        insertImage(cursor, render(icon));
        cursor = cell.lastCursorPosition();
        // Keeps the text clear of the image.
        text.prepend(QLatin1String("  "));
    }
    cursor.insertText(text, charFormat(index.data(Qt::FontRole), index.data(Qt::ForegroundRole)));
}

QTextTableFormat tableFormat()
{
    QTextTableFormat format;
    format.setWidth(QTextLength(QTextLength::PercentageLength, 98));
    format.setBackground(QBrush(Qt::white, Qt::SolidPattern));
    format.setBorder(0);
    format.setCellSpacing(2);
    format.setCellPadding(2);
    format.setAlignment(Qt::AlignLeft);
    return format;
}

} // namespace

QTextDocument *createBindingListDocument(QAbstractItemModel *model)
{
    auto document = std::make_unique<QTextDocument>();
    const int columns = model ? model->columnCount() : 0;
    if (columns <= 0)
        return document.release();

    const int rows = std::max(model->rowCount(), 0);
    QTextTable *table = QTextCursor(document.get()).insertTable(rows + 1, columns);
    for (int column = 0; column < columns; ++column)
        fillHeader(*model, column, table->cellAt(0, column));
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column)
            fillCell(model->index(row, column), table->cellAt(row + 1, column));
    }
    table->setFormat(tableFormat());
    return document.release();
}
