// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/SiteSettings.h"

#include "host/files/FileContent.h"
#include "host/files/IniText.h"
#include "host/files/InstallPaths.h"
#include "host/files/RingSettings.h"
#include "host/files/SettingsNames.h"

#include <QDir>
#include <QFileInfo>

namespace gesturewidget {
namespace {

// Bytes. Far more than all bindings need.
constexpr qint64 kMaximalSiteSettingsSize = qint64(1024) * 1024;

} // namespace

SiteSettings::SiteSettings(const QString &own)
{
    const QFileInfo file(own);
    if (own.isEmpty() || QDir(file.absolutePath()) != QDir(ownFolder()))
        return;
    const QStringList folders = siteFolders();
    for (const QString &folder : folders) {
        const QString path = QDir(folder).filePath(file.fileName());
        const FileContent content = FileContent::read(path, kMaximalSiteSettingsSize);
        if (!content.isRead())
            continue;
        const SettingsFile::Values found = IniText(content.bytes).values();
        for (auto it = found.begin(); it != found.end(); ++it) {
            if (m_values.contains(it.key()))
                continue;
            m_values.insert(it.key(), it.value());
            m_files.insert(it.key(), path);
        }
    }
    m_given = m_values;
    complete(settingsnames::moduleSection());
    const QStringList tasks = ringsettings::ownRings(m_given);
    for (const QString &task : tasks)
        complete(ringsettings::sectionOf(task));
}

void SiteSettings::complete(const QString &section)
{
    const QString shared = settingsnames::moduleSection();
    for (const int scheme : {4, 8}) {
        QMap<QString, QString> missing; // name to command
        QStringList bound;
        for (int number = 1; number <= scheme; ++number) {
            const QString key = QString::number(10 * scheme + number);
            const QString name = SettingsFile::nameOf(section, key);
            if (m_given.contains(name)) {
                bound.append(m_given.value(name));
                continue;
            }
            const QString first = settingsnames::initialCommand(key);
            missing.insert(name, section == shared
                                     ? first
                                     : m_values.value(SettingsFile::nameOf(shared, key), first));
        }
        if (missing.size() == scheme)
            continue; // a module sees that nobody has chosen any
        // A command has one direction of a scheme.
        for (auto it = missing.begin(); it != missing.end(); ++it)
            m_values.insert(it.key(),
                            bound.contains(it.value()) ? QString(QLatin1String("")) : it.value());
    }
}

SettingsFile::Values SiteSettings::chosenOf(const SettingsFile::Values &values) const
{
    SettingsFile::Values chosen = values;
    for (auto it = m_values.begin(); it != m_values.end(); ++it) {
        if (!m_given.contains(it.key()) && chosen.value(it.key()) == it.value())
            chosen.remove(it.key());
    }
    return chosen;
}

SettingsFile::Values SiteSettings::under(const SettingsFile::Values &own) const
{
    SettingsFile::Values all = own; // shared with the caller, since most sites have no values
    for (auto it = m_values.begin(); it != m_values.end(); ++it) {
        if (!own.contains(it.key()))
            all.insert(it.key(), it.value());
    }
    return all;
}

} // namespace gesturewidget
