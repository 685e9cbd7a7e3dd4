// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/sheet/SheetPage.h"

#include "launcher/sheet/SheetPainter.h"

#include <QLocale>
#include <QPagedPaintDevice>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>

namespace sheet {
namespace {

constexpr double kPageMargin = 16.0; // millimetres
constexpr double kMillimetresPerInch = 25.4;

} // namespace

bool setUpPage(QPagedPaintDevice &device)
{
    const bool isAmerican = QLocale::system().measurementSystem() == QLocale::ImperialUSSystem;
    return device.setPageSize(QPageSize(isAmerican ? QPageSize::Letter : QPageSize::A4))
        && device.setPageMargins(QMarginsF(kPageMargin, kPageMargin, kPageMargin, kPageMargin),
                                 QPageLayout::Millimeter);
}

bool drawPage(const launcher::SheetContent &content, QPagedPaintDevice &device, int resolution)
{
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    SheetPainter(content).paint(painter, QRectF(0.0, 0.0, device.width(), device.height()),
                                resolution / kMillimetresPerInch);
    return painter.end();
}

} // namespace sheet
