// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/programs/RunningPrograms.h"

#include "host/files/PluginNames.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <unistd.h>

#include <algorithm>

namespace launcher {
namespace {

QByteArray kernelText(const QString &path)
{
    QFile file(path); // of the kernel, which says nothing of its size
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// True if a process runs the file `program`, itself or by an interpreter.
bool runs(const QString &process, const QString &program)
{
    if (QFileInfo(process + QLatin1String("/exe")).symLinkTarget() == program)
        return true;
    // The words that may be a script's path: the interpreter, perhaps an option, the script.
    const QList<QByteArray> words =
        kernelText(process + QLatin1String("/cmdline")).split('\0').mid(1, 2);
    return std::any_of(words.begin(), words.end(), [&program](const QByteArray &word) {
        return word.startsWith('/') && QFileInfo(QFile::decodeName(word)).canonicalFilePath() == program;
    });
}

bool hasPlugin(const QString &process)
{
    return kernelText(process + QLatin1String("/maps")).contains(gesturewidget::kPluginFilePrefix);
}

} // namespace

QList<qint64> runningWithGestures(const Subject &subject, const QString &proc)
{
    QList<qint64> found;
    const QString program = QFileInfo(QFile::decodeName(subject.path)).canonicalFilePath();
    if (program.isEmpty())
        return found;
    const QStringList names = QDir(proc).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &name : names) {
        bool isNumber = false;
        const qint64 number = name.toLongLong(&isNumber);
        const QString process = QDir(proc).filePath(name);
        if (isNumber && QFileInfo(process).ownerId() == ::getuid() && runs(process, program)
            && hasPlugin(process))
            found.append(number);
    }
    return found;
}

} // namespace launcher
