// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/inject/PluginEnvironment.h"

#include "host/files/ExplanationChannel.h"
#include "host/files/InstallPaths.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QStringList>

#include <algorithm>

namespace inject {
namespace {

bool isOwnFolder(const QByteArray &folder)
{
    if (folder.isEmpty())
        return false;
    constexpr auto kEverything = QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System;
    const QDir plugins(QFile::decodeName(folder));
    if (plugins.entryList(kEverything) != QStringList(QStringLiteral("generic")))
        return false;
    const QStringList files = QDir(plugins.filePath(QStringLiteral("generic"))).entryList(kEverything);
    return !files.isEmpty() && std::all_of(files.begin(), files.end(), [](const QString &file) {
        return file.startsWith(QLatin1String(gesturewidget::kPluginFilePrefix));
    });
}

template <class Predicate>
QByteArray withoutEntries(const QByteArray &list, char separator, Predicate isUnwanted)
{
    QList<QByteArray> entries = list.split(separator);
    const auto kept = std::remove_if(entries.begin(), entries.end(), isUnwanted);
    if (kept == entries.end())
        return list;
    entries.erase(kept, entries.end());
    return entries.join(separator);
}

void setOrRemove(const char *name, const QByteArray &value)
{
    if (value.isEmpty())
        qunsetenv(name);
    else if (value != qgetenv(name))
        qputenv(name, value);
}

} // namespace

QByteArray withoutPlugin(const QByteArray &plugins, const QByteArray &key)
{
    return withoutEntries(plugins, ',', [&key](const QByteArray &entry) {
        return entry.split(':').first().trimmed().toLower() == key;
    });
}

QByteArray withoutOwnFolders(const QByteArray &path)
{
    return withoutEntries(path, ':', isOwnFolder);
}

void cleanEnvironment()
{
    constexpr char plugins[] = "QT_QPA_GENERIC_PLUGINS";
    constexpr char path[] = "QT_PLUGIN_PATH";
    if (qEnvironmentVariableIsSet(plugins))
        setOrRemove(plugins, withoutPlugin(qgetenv(plugins), kPluginKey));
    if (qEnvironmentVariableIsSet(path))
        setOrRemove(path, withoutOwnFolders(qgetenv(path)));
}

int takeExplanationSocket()
{
    const QByteArray value = qgetenv(gesturewidget::kExplanationVariable);
    qunsetenv(gesturewidget::kExplanationVariable);
    return gesturewidget::explanationSocket(value);
}

QString takeName()
{
    const QString value = QFile::decodeName(qgetenv(gesturewidget::kNameVariable));
    qunsetenv(gesturewidget::kNameVariable);
    return QFileInfo(value).fileName().toLower(); // never a path
}

} // namespace inject
