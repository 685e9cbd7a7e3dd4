// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/programs/ProgramName.h"

#include "host/files/InstallPaths.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <elf.h>

namespace launcher {
namespace {

// Bytes. Linux reads no more of a script's first line.
constexpr qint64 kMaximalFirstLine = 256;

QByteArray beginningOf(const QString &path)
{
    const QFileInfo info(path);
    QFile file(path);
    if (!info.isFile() || !file.open(QIODevice::ReadOnly)) // a pipe would make us wait
        return {};
    return file.read(kMaximalFirstLine);
}

bool isElf(const QByteArray &beginning)
{
    return beginning.startsWith(ELFMAG);
}

// Returns the name of the file that runs a script: "python3" for "#!/usr/bin/env python3". The shell
// runs a script that names none.
QString interpreterOf(const QByteArray &beginning)
{
    if (!beginning.startsWith("#!"))
        return QStringLiteral("sh");
    const QString line = QString::fromLocal8Bit(beginning.mid(2).split('\n').first());
    static const QRegularExpression spaces(QStringLiteral("\\s+"));
    const QStringList words = line.trimmed().split(spaces);
    QString first = QFileInfo(words.first()).fileName();
    if (first != QLatin1String("env"))
        return first;
    const QStringList others = words.mid(1);
    for (const QString &word : others) {
        // Of env: an option, or a variable for the interpreter.
        if (!word.startsWith(QLatin1Char('-')) && !word.contains(QLatin1Char('=')))
            return QFileInfo(word).fileName();
    }
    return first;
}

} // namespace

ProgramName ProgramName::of(const QByteArray &typed, const QByteArray &path, const QStringList &folders)
{
    const QString name = QFile::decodeName(typed);
    const QString file = QFileInfo(QFile::decodeName(path)).canonicalFilePath();
    const QByteArray beginning = beginningOf(file);
    // A file that cannot be read is no script, since its interpreter could not read it either.
    if (beginning.isEmpty() || isElf(beginning))
        return {gesturewidget::chooseProgramName(name, file, folders), false};
    return {gesturewidget::chooseScriptName(name, file, interpreterOf(beginning), folders), true};
}

bool isProgram(const QByteArray &path)
{
    const QByteArray beginning = beginningOf(QFile::decodeName(path));
    return beginning.startsWith("#!") || isElf(beginning);
}

} // namespace launcher
