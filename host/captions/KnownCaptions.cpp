// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/captions/KnownCaptions.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace gesturewidget {
namespace {

QHash<QString, QStringList> listsIn(const QJsonObject &object)
{
    QHash<QString, QStringList> lists;
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        QStringList &list = lists[entry.key()];
        const QJsonArray captions = entry->toArray();
        for (const auto &caption : captions)
            list.append(caption.toString());
    }
    return lists;
}

KnownCaptions read(const QString &language)
{
    KnownCaptions captions;
    captions.language = language;
    QFile file(QStringLiteral(":/gesturewidget-host/captions/%1.json").arg(language));
    if (!file.open(QIODevice::ReadOnly))
        return captions; // embedded with this code; a test finds each language
    const QJsonObject object = QJsonDocument::fromJson(file.readAll()).object();
    captions.menus = listsIn(object.value(QStringLiteral("menus")).toObject());
    captions.commands = listsIn(object.value(QStringLiteral("commands")).toObject());
    captions.commandsInTheirMenus =
        listsIn(object.value(QStringLiteral("commandsInTheirMenus")).toObject());
    return captions;
}

} // namespace

const QVector<KnownCaptions> &KnownCaptions::languages()
{
    static const QVector<KnownCaptions> all = [] {
        QVector<KnownCaptions> list;
        for (const char *code : {"en", "de", "fr", "es", "it", "pt", "pl", "ru", "ja", "zh"})
            list.append(read(QLatin1String(code)));
        return list;
    }();
    return all;
}

QStringList KnownCaptions::menusOf(const QString &role)
{
    QStringList all;
    for (const KnownCaptions &captions : languages())
        all += captions.menus.value(role);
    return all;
}

} // namespace gesturewidget
