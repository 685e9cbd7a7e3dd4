// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/SiteSettings.h"

#include "host/files/FileContent.h"
#include "host/files/IniText.h"
#include "host/files/InstallPaths.h"

#include <QDir>
#include <QFileInfo>

namespace gesturewidget {
namespace {

// Bytes. Far more than all bindings need.
constexpr qint64 kMaximalSize = qint64(1024) * 1024;

} // namespace

SiteSettings::SiteSettings(const QString &own)
{
    const QFileInfo file(own);
    if (own.isEmpty() || QDir(file.absolutePath()) != QDir(ownFolder()))
        return;
    const QStringList folders = siteFolders();
    for (const QString &folder : folders) {
        const QString path = QDir(folder).filePath(file.fileName());
        const FileContent content = FileContent::read(path, kMaximalSize);
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
