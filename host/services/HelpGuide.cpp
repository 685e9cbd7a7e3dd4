// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/services/HelpGuide.h"

#include "host/files/InstallPaths.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>

namespace gesturewidget {
namespace {

// Levels of folders from the library up to the root of its tree, at most: lib/<architecture>/, or
// build/<preset>/lib/ in a source tree.
constexpr int kLevels = 4;

QStringList candidates()
{
    QStringList files;
    QDir folder = QFileInfo(moduleFile()).absoluteDir();
    for (int level = 0; level < kLevels && folder.cdUp(); ++level) {
        files.append(folder.filePath(QStringLiteral("share/doc/gesturewidget/html/user-guide.html")));
        files.append(folder.filePath(QStringLiteral("docs/user-guide.html")));
    }
    return files;
}

} // namespace

HelpGuide::HelpGuide()
    : opener(&QDesktopServices::openUrl)
    , files(candidates())
{
}

bool HelpGuide::open(int topic) const
{
    for (const QString &file : files) {
        if (!QFileInfo(file).isFile())
            continue;
        QUrl url = QUrl::fromLocalFile(QFileInfo(file).canonicalFilePath());
        url.setFragment(anchorOf(topic));
        return opener(url);
    }
    return false;
}

QString HelpGuide::anchorOf(int topic)
{
    return topic == 0 ? QString() : QStringLiteral("topic-%1").arg(topic);
}

} // namespace gesturewidget
