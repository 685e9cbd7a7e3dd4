// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/programs/Subject.h"

#include "host/files/InstallPaths.h"
#include "launcher/programs/ProgramCheck.h"
#include "launcher/programs/ProgramLookup.h"
#include "launcher/programs/ProgramName.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <unistd.h>

#include <filesystem>

namespace launcher {

QByteArray launcherFolder()
{
    std::error_code error;
    const std::filesystem::path path = std::filesystem::read_symlink("/proc/self/exe", error);
    return QByteArray::fromStdString(path.parent_path().string());
}

QByteArray launcherPath()
{
    return launcherFolder() + "/mouse-gestures";
}

QString profileFile(const QString &program, const QStringList &folders)
{
    for (const QString &folder : folders) {
        QString path = QDir(folder).filePath(program + QLatin1String(".json"));
        if (!folder.isEmpty() && QFileInfo::exists(path))
            return path;
    }
    return {};
}

Subject Subject::of(const QByteArray &typed)
{
    Subject subject;
    subject.typed = typed;
    subject.environment = readEnvironment(::environ);
    subject.profileFolders = gesturewidget::profileFolders(QDir(QFile::decodeName(launcherFolder())));
    subject.plugins = pluginFolders(launcherFolder());

    const ProgramLookup lookup =
        ProgramLookup::find(typed, subject.environment.value("PATH", kDefaultSearchPath));
    if (lookup.result == ProgramLookup::Result::Found) {
        subject.path = lookup.path;
        const ProgramName found = ProgramName::of(typed, lookup.path, subject.profileFolders);
        subject.name = found.name;
        subject.isScript = found.isOfScript;
    } else {
        subject.name = QFileInfo(QFile::decodeName(typed)).fileName().toLower();
    }
    return subject;
}

QString Subject::settingsFile() const
{
    return gesturewidget::settingsFile(name);
}

QString Subject::catalogueFile() const
{
    return gesturewidget::catalogueFile(name);
}

} // namespace launcher
