// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFrame>

namespace settings {

// A field that records a trigger by doing it: press a mouse button in it, with the keys that are to
// be held.
class TriggerField : public QFrame
{
    Q_OBJECT

public:
    explicit TriggerField(QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    // Written as in host/files/TriggerText.h. It may be one that nobody may choose.
    void recorded(const QString &trigger);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    bool m_isPressed = false;
};

} // namespace settings
