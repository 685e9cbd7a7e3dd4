// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/programs/PluginFolders.h"

#include "host/files/PluginNames.h"

#include <QDir>
#include <QFile>

namespace launcher {

QList<PluginFolder> pluginFolders(const QByteArray &executableFolder)
{
    const QDir prefix(QDir::cleanPath(QFile::decodeName(executableFolder) + QLatin1String("/..")));
    QList<PluginFolder> result;
    for (const int major : {5, 6}) {
        const QString file = QLatin1Char('/') + gesturewidget::pluginFile(major);
        const QString below = QStringLiteral("/gesturewidget/qt%1/plugins").arg(major);
        QStringList candidates = {prefix.filePath(QStringLiteral("plugins")),
                                  prefix.filePath(QStringLiteral("lib")) + below,
                                  prefix.filePath(QStringLiteral("lib64")) + below};
        const QDir lib(prefix.filePath(QStringLiteral("lib")));
        const QStringList architectures = lib.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
        for (const QString &architecture : architectures)
            candidates.append(lib.filePath(architecture) + below);
        for (const QString &candidate : candidates) {
            if (QFile::exists(candidate + file))
                result.append({QFile::encodeName(candidate), major});
        }
    }
    return result;
}

} // namespace launcher
