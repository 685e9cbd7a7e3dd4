// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/Folders.h"

#include <QFileInfo>

namespace launcher {

QString nearestFolder(const QString &folder)
{
    QString nearest = folder;
    while (!QFileInfo(nearest).isDir() && nearest != QFileInfo(nearest).path())
        nearest = QFileInfo(nearest).path();
    return nearest;
}

} // namespace launcher
