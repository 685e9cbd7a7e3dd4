// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractButton>

namespace settings {

class RingView;

// One direction of the ring as a button. The ring paints it.
class SectorButton : public QAbstractButton
{
    Q_OBJECT

public:
    explicit SectorButton(RingView *ring);

Q_SIGNALS:
    // The mouse was pressed here and moves away.
    void dragBegun();
    // Focus or pointer came or went.
    void lookChanged(bool hasFocus);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QPoint m_press;
    bool m_isPressed = false;
};

} // namespace settings
