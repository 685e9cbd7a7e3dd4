// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/sheet/SheetContent.h"

#include "launcher/settings/Bindings.h"
#include "launcher/Text.h"

#include <QHash>
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
    static const QHash<QString, const char *> buttons{
        {QStringLiteral("left"), QT_TRANSLATE_NOOP("launcher", "the left button")},
        {QStringLiteral("middle"), QT_TRANSLATE_NOOP("launcher", "the middle button")},
        {QStringLiteral("right"), QT_TRANSLATE_NOOP("launcher", "the right button")},
        {QStringLiteral("back"), QT_TRANSLATE_NOOP("launcher", "the back button")},
        {QStringLiteral("forward"), QT_TRANSLATE_NOOP("launcher", "the forward button")}};
    static const QHash<QString, const char *> modifiers{
        {QStringLiteral("ctrl"), QT_TRANSLATE_NOOP("launcher", "Ctrl")},
        {QStringLiteral("shift"), QT_TRANSLATE_NOOP("launcher", "Shift")},
        {QStringLiteral("alt"), QT_TRANSLATE_NOOP("launcher", "Alt")},
        {QStringLiteral("meta"), QT_TRANSLATE_NOOP("launcher", "Meta")}};
    QStringList keys = trigger.split(QLatin1Char('+'));
    const QString last = keys.takeLast();
    const char *known = buttons.value(last);
    const QString button = known ? Text::tr(known) : last;
    for (QString &key : keys) {
        if (const char *name = modifiers.value(key))
            key = Text::tr(name);
    }
    return keys.isEmpty() ? button : Text::tr("%1 and %2").arg(keys.join(QStringLiteral(", ")), button);
}

} // namespace launcher
