// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "settings/programs/Switch.h"

#include <QFontMetrics>
#include <QPainter>

namespace settings {
namespace {

constexpr double kBetween = 2.0; // pixels between the groove and the knob

} // namespace

Switch::Switch(QWidget *parent)
    : QAbstractButton(parent)
{
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setCursor(Qt::PointingHandCursor);
}

QSize Switch::sizeHint() const
{
    return sizeFor(fontMetrics()) + QSize(6, 6);
}

QSize Switch::sizeFor(const QFontMetrics &metrics)
{
    const int height = metrics.height() + 2;
    return {height * 9 / 5, height};
}

void Switch::paint(QPainter &painter, const QRect &rect, bool isOn, bool hasFocus,
                   const QPalette &palette)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF groove = QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5);
    const double radius = groove.height() / 2.0;
    const bool isDark = palette.color(QPalette::Window).lightness() < 128;
    QColor off = isDark ? QColor(118, 122, 128) : QColor(158, 164, 172);
    const QColor &on = palette.color(QPalette::Highlight);
    painter.setPen(QPen((isOn ? on : off).darker(120), 1.0));
    painter.setBrush(isOn ? on : off);
    painter.drawRoundedRect(groove, radius, radius);
    const double side = groove.height() - 2.0 * kBetween;
    const double left = isOn ? groove.right() - kBetween - side : groove.left() + kBetween;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 255, 255));
    painter.drawEllipse(QRectF(left, groove.top() + kBetween, side, side));
    if (hasFocus) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(palette.color(QPalette::WindowText), 1.0, Qt::DotLine));
        painter.drawRoundedRect(groove.adjusted(-2.0, -2.0, 2.0, 2.0), radius + 2.0, radius + 2.0);
    }
    painter.restore();
}

void Switch::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    QRect box(QPoint(), sizeFor(fontMetrics()));
    box.moveCenter(rect().center());
    paint(painter, box, isChecked(), hasFocus(), palette());
}

} // namespace settings
