// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/bindings/StandardCommands.h"

#include <QPixmap>

namespace tests {

QStringList standardIdentifiers()
{
    return QStringLiteral("ID_COPY ID_DTEXT ID_LINE ID_OFFSET ID_OPEN ID_SAVE ID_TRIM ID_ZOOM_BOUNDS")
        .split(QLatin1Char(' '));
}

void addStandardCommands(FakeHost &host)
{
    const QStringList identifiers = standardIdentifiers();
    for (const QString &identifier : identifiers) {
        const QString name = identifier.mid(3).toLower();
        const QString caption = name.at(0).toUpper() + name.mid(1);
        host.commands.addCommand(identifier, name, caption, QLatin1String("Tip of ") + caption);
    }
}

QStringList allKeys()
{
    return QStringLiteral("EnableMouseGesture ActiveScheme 41 42 43 44 81 82 83 84 85 86 87 88")
        .split(QLatin1Char(' '));
}

QStringList writes(const FakeHost &host)
{
    const QString prefix = QStringLiteral("store.set ");
    QStringList found = host.log.startingWith(prefix);
    for (QString &call : found)
        call.remove(0, prefix.size());
    return found;
}

QIcon anyIcon()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    return QIcon(pixmap);
}

} // namespace tests
