// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/sheet/FittedText.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QStringList>
#include <QTextLayout>

#include <algorithm>

namespace sheet {
namespace {

// A whole name is at least this large, compared with its last part alone. Chosen by looking at rings.
constexpr double kSmallestWholeName = 0.8;

// Breaks between words only. A word that is wider than the line makes the line too wide.
QStringList brokenUp(const QString &text, const QFont &font, double width)
{
    QTextLayout layout(text, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WordWrap);
    option.setUseDesignMetrics(true);
    layout.setTextOption(option);
    layout.beginLayout();
    QStringList lines;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        lines.append(text.mid(line.textStart(), line.textLength()).trimmed());
    }
    layout.endLayout();
    return lines;
}

QSizeF sizeOf(const QStringList &lines, const QFontMetricsF &metrics)
{
    double width = 0.0;
    for (const QString &line : lines)
        width = std::max(width, metrics.horizontalAdvance(line));
    return {width, metrics.height() * static_cast<double>(lines.size())};
}

} // namespace

FittedText::FittedText(const QString &wanted, const QFont &wantedFont, const QSizeF &box, int largest,
                       int smallest, int lines)
    : font(wantedFont)
{
    // Nobody sees a difference of one step.
    const int step = std::max(1, (largest - smallest) / 30);
    for (int pixels = largest; pixels >= smallest; pixels -= step) {
        font.setPixelSize(pixels);
        const QStringList broken = brokenUp(wanted, font, box.width());
        const QFontMetricsF metrics(font);
        size = sizeOf(broken, metrics);
        text = broken.join(QLatin1Char('\n'));
        if (broken.size() <= lines && size.width() <= box.width() && size.height() <= box.height())
            return;
    }
    font.setPixelSize(smallest);
    const QFontMetricsF metrics(font);
    const int most = std::max(1, std::min(lines, static_cast<int>(box.height() / metrics.height())));
    QStringList broken = brokenUp(wanted, font, box.width());
    if (broken.size() > most) {
        const QStringList rest = broken.mid(most - 1);
        broken = broken.mid(0, most - 1) + QStringList(rest.join(QLatin1Char(' ')));
    }
    for (QString &line : broken)
        line = metrics.elidedText(line, Qt::ElideRight, box.width());
    size = sizeOf(broken, metrics);
    text = broken.join(QLatin1Char('\n'));
}

FittedText FittedText::ofName(const QString &name, const QFont &font, const QSizeF &box, int largest,
                              int smallest, int lines)
{
    FittedText whole(name, font, box, largest, smallest, lines);
    const QString last = name.section(QLatin1String(" > "), -1);
    if (last == name)
        return whole;
    FittedText part(last, font, box, largest, smallest, lines);
    const bool isLarge = whole.font.pixelSize() >= kSmallestWholeName * part.font.pixelSize();
    return isLarge && !whole.text.contains(QChar(0x2026)) ? whole : part;
}

void FittedText::paint(QPainter &painter, const QRectF &box, Qt::Alignment alignment) const
{
    painter.setFont(font);
    const QFontMetricsF metrics(font);
    const QStringList lines = text.split(QLatin1Char('\n'));
    double y = box.center().y() - size.height() / 2.0;
    for (const QString &line : lines) {
        const double free = box.width() - metrics.horizontalAdvance(line);
        const double x = box.left() + (alignment.testFlag(Qt::AlignHCenter) ? free / 2.0 : 0.0);
        painter.drawText(QPointF(x, y + metrics.ascent()), line);
        y += metrics.height();
    }
}

} // namespace sheet
