// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

namespace gesturewidget {

// The view of a document whose real view is gone: a widget that accepts cursors, coordinates and
// posted events without effect, and that nothing can show.
class StandInWidget : public QWidget
{
    Q_OBJECT

public:
    StandInWidget();
    ~StandInWidget() override;

    void setVisible(bool visible) override;

protected:
    bool event(QEvent *event) override;
};

} // namespace gesturewidget
