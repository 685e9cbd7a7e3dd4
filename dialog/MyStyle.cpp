// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "dialog/MyStyle.h"

#include <QStyleFactory>

namespace {

// The proxy takes ownership of the style. If neither style exists, null makes it use the
// program's own.
QStyle *createBaseStyle()
{
    QStyle *plastique = QStyleFactory::create(QStringLiteral("Plastique"));
    return plastique ? plastique : QStyleFactory::create(QStringLiteral("Fusion"));
}

} // namespace

MyStyle::MyStyle()
    : QProxyStyle(createBaseStyle())
{
}

void MyStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                            const QWidget *widget) const
{
    if (element == PE_FrameFocusRect)
        return;
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}
