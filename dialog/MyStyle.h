// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QProxyStyle>

// The Plastique style without focus rectangles; Fusion where Plastique is not installed.
class MyStyle : public QProxyStyle
{
    Q_OBJECT

public:
    MyStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
};
