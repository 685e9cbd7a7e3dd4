// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/sheet/SheetPainter.h"

#include "launcher/settings/Bindings.h"
#include "launcher/sheet/FittedText.h"
#include "launcher/sheet/RingPicture.h"
#include "launcher/Text.h"
#include "resources/draw/Palette.h"

#include <QImage>
#include <QPainter>
#include <QPen>

#include <algorithm>

namespace sheet {
namespace {

using namespace draw;

// All in millimetres.
constexpr double kTitleHeight = 13.0;
constexpr double kSubtitleHeight = 6.0;
constexpr double kGap = 6.0;
constexpr double kRowHeight = 9.0;
constexpr double kCellMargin = 2.5;
constexpr double kCellAir = 0.6; // above and below
constexpr double kRowIconSize = 6.0;
constexpr double kTextSize = 3.7;
constexpr double kSmallestTextSize = 2.4;

// Parts of the table's width.
constexpr double kDirectionColumn = 0.24;
constexpr double kCommandColumn = 0.46;

QImage arrow(QString direction)
{
    return QImage(QStringLiteral(":/gesturewidgetimages/Resources/%1.png")
                      .arg(direction.replace(QLatin1Char('-'), QLatin1Char('_'))));
}

void paintImage(QPainter &painter, const QImage &image, const QRectF &square)
{
    if (image.isNull())
        return;
    const QSizeF size = QSizeF(image.size()).scaled(square.size(), Qt::KeepAspectRatio);
    painter.drawImage(QRectF(square.center() - QPointF(size.width() / 2.0, size.height() / 2.0), size),
                      image);
}

} // namespace

SheetPainter::SheetPainter(const launcher::SheetContent &content)
    : m_content(content)
{
    m_font.setFamily(QStringLiteral("Sans Serif"));
    m_font.setStyleHint(QFont::SansSerif);
    m_font.setHintingPreference(QFont::PreferNoHinting);
}

void SheetPainter::paint(QPainter &painter, const QRectF &page, double millimetre) const
{
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const double top = paintTitle(painter, page, millimetre);
    const double tableHeight =
        kRowHeight * millimetre * static_cast<double>(m_content.commands.size() + 1);
    const double room = page.bottom() - tableHeight - kGap * millimetre - top;
    const double side = std::min(room, page.width());
    // The ring gets the space that the rest of the page leaves.
    const QRectF square(page.center().x() - side / 2.0, top + (room - side) / 2.0, side, side);
    RingPicture(m_content, m_font).paint(painter, square);
    paintTable(painter, QRectF(page.left(), page.bottom() - tableHeight, page.width(), tableHeight),
               millimetre);
}

bool SheetPainter::hasIcons() const
{
    return std::any_of(m_content.commands.begin(), m_content.commands.end(),
                       [](const launcher::SheetContent::Command &one) { return !one.icon.isEmpty(); });
}

// Returns the top of the rest.
double SheetPainter::paintTitle(QPainter &painter, const QRectF &page, double mm) const
{
    QFont bold = m_font;
    bold.setBold(true);
    const QRectF title(page.left(), page.top(), page.width(), kTitleHeight * mm);
    painter.setPen(palette::kRim);
    FittedText(launcher::Text::tr("Mouse gestures in %1").arg(m_content.program), bold, title.size(),
               qRound(8.0 * mm), qRound(4.0 * mm), 2)
        .paint(painter, title, Qt::AlignHCenter);
    double bottom = title.bottom();
    if (!m_content.enabled) {
        const QRectF note(page.left(), bottom, page.width(), kSubtitleHeight * mm);
        painter.setPen(palette::kHighlightRim);
        FittedText(launcher::Text::tr("They are switched off at the moment."), m_font, note.size(),
                   qRound(kTextSize * mm), qRound(kSmallestTextSize * mm))
            .paint(painter, note, Qt::AlignHCenter);
        bottom = note.bottom();
    }
    return bottom + kGap / 2.0 * mm;
}

void SheetPainter::paintTable(QPainter &painter, const QRectF &area, double mm) const
{
    QFont bold = m_font;
    bold.setBold(true);
    const double height = kRowHeight * mm;
    const QRectF head(area.left(), area.top(), area.width(), height);
    painter.fillRect(head, palette::kBandEdge);
    painter.setPen(palette::kRim);
    const double margin = kCellMargin * mm;
    const auto title = [&](const QString &text, double from, double width) {
        const QRectF cell =
            QRectF(area.left() + from * area.width(), head.top(), width * area.width(), height)
                .adjusted(margin, 0.0, -margin, 0.0);
        FittedText(text, bold, cell.size(), qRound(kTextSize * mm), qRound(kSmallestTextSize * mm))
            .paint(painter, cell, Qt::AlignLeft);
    };
    title(launcher::Text::tr("Direction"), 0.0, kDirectionColumn);
    title(launcher::Text::tr("Command"), kDirectionColumn, kCommandColumn);
    title(launcher::Text::tr("Category"), kDirectionColumn + kCommandColumn,
          1.0 - kDirectionColumn - kCommandColumn);

    for (int i = 0; i < m_content.commands.size(); ++i) {
        const QRectF row(area.left(), head.bottom() + i * height, area.width(), height);
        if (i % 2 != 0)
            painter.fillRect(row, palette::kBandMiddle);
        paintRow(painter, row, m_content.commands.at(i), mm);
    }
    painter.setPen(QPen(palette::kBandEdge.darker(115), 0.25 * mm));
    for (int i = 1; i <= m_content.commands.size() + 1; ++i)
        painter.drawLine(QPointF(area.left(), area.top() + i * height),
                         QPointF(area.right(), area.top() + i * height));
}

void SheetPainter::paintRow(QPainter &painter, const QRectF &row,
                            const launcher::SheetContent::Command &command, double mm) const
{
    const double margin = kCellMargin * mm;
    const double icon = kRowIconSize * mm;
    const auto column = [&](double from, double width) {
        return QRectF(row.left() + from * row.width(), row.top(), width * row.width(), row.height())
            .adjusted(margin, kCellAir * mm, -margin, -kCellAir * mm);
    };
    const auto paintText = [&](const QString &text, const QRectF &cell, const QColor &color) {
        painter.setPen(color);
        FittedText(text, m_font, cell.size(), qRound(kTextSize * mm), qRound(kSmallestTextSize * mm), 2)
            .paint(painter, cell, Qt::AlignLeft);
    };
    const auto iconIn = [&](const QRectF &cell) {
        return QRectF(cell.left(), cell.center().y() - icon / 2.0, icon, icon);
    };
    const auto besideIcon = [&](QRectF cell) { return cell.adjusted(icon + margin, 0.0, 0.0, 0.0); };

    const QRectF direction = column(0.0, kDirectionColumn);
    paintImage(painter, arrow(command.direction), iconIn(direction));
    paintText(launcher::Bindings::directionInWords(command.direction), besideIcon(direction),
              palette::kRim);

    const QRectF name = column(kDirectionColumn, kCommandColumn);
    const QRectF words = hasIcons() ? besideIcon(name) : name;
    if (command.caption.isEmpty()) {
        paintText(launcher::Text::tr("nothing"), words, palette::kMark.lighter(150));
        return;
    }
    paintImage(painter, QImage::fromData(command.icon, "PNG"), iconIn(name));
    paintText(command.caption, words, palette::kRim);
    paintText(command.category,
              column(kDirectionColumn + kCommandColumn, 1.0 - kDirectionColumn - kCommandColumn),
              palette::kMark);
}

} // namespace sheet
