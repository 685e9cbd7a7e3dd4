// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractButton>

namespace settings {

// A switch as phones have them. A check box in all but its look.
class Switch : public QAbstractButton
{
    Q_OBJECT

public:
    explicit Switch(QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;

    // The size of a switch beside text of a font, in pixels.
    [[nodiscard]] static QSize sizeFor(const QFontMetrics &metrics);
    static void paint(QPainter &painter, const QRect &rect, bool isOn, bool hasFocus,
                      const QPalette &palette);

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace settings
