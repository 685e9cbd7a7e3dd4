// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>
#include <QTimer>

// A note that lies over a window for four seconds and looks like a tooltip. A real tooltip ends
// when the focus moves, which is what happens when a choice closes a drop-down.
class Notice : public QLabel
{
    Q_OBJECT

public:
    static constexpr int kDuration = 4000; // milliseconds

    // Hidden at first. `window` is what it lies over.
    explicit Notice(QWidget *window);

    // Shows plain text below a place in the window, in the window's pixels, or above it where
    // there is no room. Screen readers read it out.
    void showFor(const QString &note, const QRect &place);

private:
    QTimer m_end;
};
