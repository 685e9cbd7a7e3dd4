// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/sheet/SheetContent.h"

#include "launcher/settings/Bindings.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace launcher {

QByteArray SheetContent::toJson() const
{
    QJsonArray list;
    for (const Command &command : commands)
        list.append(QJsonObject{{QStringLiteral("direction"), command.direction},
                                {QStringLiteral("caption"), command.caption},
                                {QStringLiteral("category"), command.category},
                                {QStringLiteral("icon"), QString::fromLatin1(command.icon.toBase64())}});
    return QJsonDocument(QJsonObject{{QStringLiteral("program"), program},
                                     {QStringLiteral("trigger"), trigger},
                                     {QStringLiteral("enabled"), enabled},
                                     {QStringLiteral("commands"), list}})
        .toJson(QJsonDocument::Compact);
}

bool SheetContent::read(const QByteArray &json)
{
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    program = object.value(QStringLiteral("program")).toString();
    trigger = object.value(QStringLiteral("trigger")).toString();
    enabled = object.value(QStringLiteral("enabled")).toBool(true);
    commands.clear();
    const QJsonArray list = object.value(QStringLiteral("commands")).toArray();
    if (program.isEmpty() || (list.size() != 4 && list.size() != 8))
        return false;
    const QStringList names = Bindings::directionNames(static_cast<int>(list.size()));
    for (const QJsonValue &value : list) {
        const QJsonObject one = value.toObject();
        const auto text = [&one](const char *key) { return one.value(QLatin1String(key)).toString(); };
        if (text("direction") != names.at(static_cast<int>(commands.size())))
            return false;
        commands.append({text("direction"), text("caption").simplified(), text("category").simplified(),
                         QByteArray::fromBase64(text("icon").toLatin1())});
    }
    return true;
}

QString SheetContent::triggerInWords() const
{
    QStringList keys = trigger.split(QLatin1Char('+'));
    const QString button = QStringLiteral("the %1 button").arg(keys.takeLast());
    for (QString &key : keys)
        key = key.left(1).toUpper() + key.mid(1);
    return keys.isEmpty() ? button
                          : QStringLiteral("%1 and %2").arg(keys.join(QStringLiteral(", ")), button);
}

} // namespace launcher
