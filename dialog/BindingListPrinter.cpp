// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "dialog/BindingListPrinter.h"

#include <QAbstractTextDocumentLayout>
#include <QFontMetricsF>
#include <QPainter>
#include <QPrinter>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextTable>

#include <algorithm>
#include <memory>
#include <vector>

namespace {

constexpr qreal kPageMargin = 2 / 2.54; // inches, around the page: 2 cm
constexpr qreal kDocumentDpi = 96; // the unit of lengths in formats
constexpr qreal kRounding = 4; // pixels of the printer, far less than a row
constexpr qreal kPageNumberGap = 5 / 72.0; // inches, above a page number

// Centres the icons on their lines of text. The layout puts the middle of an image above the baseline by
// a quarter of the height of an "x", in the font of the image and in pixels of the screen. So the image
// gets a font in which that is the middle of the text, in pixels of the printer.
void centreIcons(QTextDocument &document, QPrinter &printer)
{
    QTextCursor cursor(&document);
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextFragment image = part.fragment();
            auto next = part;
            if (!image.charFormat().isImageFormat() || (++next).atEnd())
                continue;
            QFont font = next.fragment().charFormat().font();
            const QFontMetricsF metrics(font, &printer);
            constexpr int kSample = 1000; // pixels
            font.setPixelSize(kSample);
            const qreal height = 2 * (metrics.ascent() - metrics.descent());
            font.setPixelSize(qRound(kSample * height / QFontMetricsF(font).xHeight()));
            QTextCharFormat format;
            format.setFont(font);
            cursor.setPosition(image.position());
            cursor.setPosition(image.position() + image.length(), QTextCursor::KeepAnchor);
            cursor.mergeCharFormat(format);
            break; // a cell has one image, and the parts are others now
        }
    }
}

// A horizontal strip of the laid-out document, in pixels of the printer.
struct Strip
{
    qreal top{};
    qreal bottom{};
    [[nodiscard]] qreal height() const { return bottom - top; }
};

QTextTable *tableOf(const QTextDocument &document)
{
    const QList<QTextFrame *> frames = document.rootFrame()->childFrames();
    return frames.isEmpty() ? nullptr : qobject_cast<QTextTable *>(frames.front());
}

// The highest cell of a row fills it, so its blocks and padding give the height of the row.
Strip stripOf(QTextTable &table, int row, qreal scale)
{
    const QAbstractTextDocumentLayout *layout = table.document()->documentLayout();
    const qreal padding = table.format().cellPadding() * scale;
    Strip strip{layout->frameBoundingRect(&table).bottom()};
    for (int column = 0; column < table.columns(); ++column) {
        const QTextTableCell cell = table.cellAt(row, column);
        // Margins of blocks take no room at the edges of a cell.
        const QTextBlock first = cell.firstCursorPosition().block();
        const QTextBlock last = cell.lastCursorPosition().block();
        strip.top = std::min(strip.top, layout->blockBoundingRect(first).top() - padding);
        strip.bottom = std::max(strip.bottom, layout->blockBoundingRect(last).bottom() + padding);
    }
    return strip;
}

// The rows below the header, by page. `room` is the height for rows on a page.
std::vector<Strip> pagesOf(QTextTable &table, qreal scale, qreal room)
{
    std::vector<Strip> pages;
    for (int row = 1; row < table.rows(); ++row) {
        const Strip strip = stripOf(table, row, scale);
        if (pages.empty() || strip.bottom - pages.back().top > room)
            pages.push_back({strip.top, strip.top});
        for (; strip.bottom - pages.back().top > room; pages.push_back({pages.back().bottom}))
            pages.back().bottom = pages.back().top + room;
        pages.back().bottom = strip.bottom;
    }
    // A header without rows is a page too.
    if (pages.empty())
        pages.push_back({});
    return pages;
}

void draw(const QTextDocument &document, QPainter &painter, const Strip &strip, const QPointF &position)
{
    QAbstractTextDocumentLayout::PaintContext context;
    const QRectF area(0, strip.top, document.textWidth(), strip.height());
    // The clip is a little smaller. Otherwise the layout also writes the clipped text of the next rows,
    // and a search in the file would find it.
    context.clip = area.adjusted(0, kRounding, 0, -kRounding);
    painter.save();
    painter.translate(position.x(), position.y() - strip.top);
    painter.setClipRect(area);
    document.documentLayout()->draw(&painter, context);
    painter.restore();
}

void drawPageNumber(QPainter &painter, const QRectF &body, int number)
{
    const QFontMetrics metrics = painter.fontMetrics();
    const QString text = QString::number(number);
    painter.drawText(
        QPointF(body.right() - metrics.horizontalAdvance(text),
                body.bottom() + metrics.ascent() + kPageNumberGap * painter.device()->logicalDpiY()),
        text);
}

} // namespace

void printBindingList(const QTextDocument &source, QPrinter &printer)
{
    QPainter painter(&printer);
    const std::unique_ptr<QTextDocument> document(source.clone());
    QTextTable *table = tableOf(*document);
    if (!painter.isActive() || !table)
        return;

    const qreal scale = printer.logicalDpiY() / kDocumentDpi;
    const qreal across = kPageMargin * printer.logicalDpiX();
    const qreal down = kPageMargin * printer.logicalDpiY();
    const QRectF body = QRectF(QPointF(), QSizeF(printer.width(), printer.height()))
                            .adjusted(across, down, -across, -down);
    centreIcons(*document, printer);
    document->setDocumentMargin(0);
    document->documentLayout()->setPaintDevice(&printer);
    document->setTextWidth(body.width());

    const Strip header = stripOf(*table, 0, scale);
    const qreal spacing = table->format().cellSpacing() * scale;
    const qreal rowsTop = body.top() + header.height() + spacing;
    const std::vector<Strip> pages = pagesOf(*table, scale, body.bottom() - rowsTop);

    const int last = static_cast<int>(pages.size());
    const int from = std::clamp(printer.fromPage(), 1, last);
    const int to = printer.toPage() > 0 ? std::clamp(printer.toPage(), from, last) : last;
    const bool backwards = printer.pageOrder() == QPrinter::LastPageFirst;
    for (int count = 0; count <= to - from; ++count) {
        if (count > 0 && !printer.newPage())
            return;
        const int page = backwards ? to - count : from + count;
        draw(*document, painter, header, body.topLeft());
        draw(*document, painter, pages[page - 1], QPointF(body.left(), rowsTop));
        drawPageNumber(painter, body, page);
    }
}
