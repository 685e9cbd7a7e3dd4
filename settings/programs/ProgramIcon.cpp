// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "settings/programs/ProgramIcon.h"

#include "sdk/QtBridge.h"

#include <QApplication>
#include <QStandardPaths>
#include <QStyle>

namespace settings {
namespace {

// Many entries name an image that belongs to no theme, with or without its ending.
QString fileOutsideOfThemes(const QString &name)
{
    if (name.isEmpty())
        return {};
    for (const char *folder : {"icons/", "pixmaps/"}) {
        for (const char *ending : {"", ".svg", ".png", ".xpm"}) {
            QString file = QStandardPaths::locate(QStandardPaths::GenericDataLocation,
                                                  QLatin1String(folder) + name + QLatin1String(ending));
            if (!file.isEmpty())
                return file;
        }
    }
    return {};
}

} // namespace

void findIconsWithoutTheme()
{
    if (QIcon::fallbackThemeName().isEmpty())
        QIcon::setFallbackThemeName(QStringLiteral("hicolor"));
}

QIcon programIcon(const QString &name)
{
    QIcon icon;
    if (name.startsWith(QLatin1Char('/')))
        icon = QIcon(name);
    else if (QIcon::hasThemeIcon(name))
        icon = QIcon::fromTheme(name);
    if (icon.isNull())
        icon = QIcon(fileOutsideOfThemes(name));
    if (icon.isNull())
        icon = QIcon::fromTheme(QStringLiteral("application-x-executable"));
    return icon.isNull() ? QApplication::style()->standardIcon(QStyle::SP_DesktopIcon) : icon;
}

QPixmap programPixmap(const QIcon &icon, int side, qreal ratio)
{
    const QPixmap pixmap = qtbridge::pixmapOf(icon, QSize(side, side), ratio);
    if (pixmap.isNull())
        return pixmap;
    const QSize size =
        QSizeF(pixmap.size()).scaled(QSizeF(side, side) * ratio, Qt::KeepAspectRatio).toSize();
    QPixmap filling = pixmap.size() == size
                        ? pixmap
                        : pixmap.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    filling.setDevicePixelRatio(ratio);
    return filling;
}

} // namespace settings
