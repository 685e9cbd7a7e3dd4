// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/bindings/OlderSettings.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>

namespace tests {
namespace {

// The application name that the fake host gives unless told otherwise.
const QString kFakeHost = QStringLiteral("fakehost");

QByteArray contentsOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

OlderSettings::OlderSettings()
{
    if (!m_folder.isValid())
        qFatal("no temporary folder for settings");
    // The system's settings are a fallback for the user's, so hide them as well.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder.path());
    QSettings::setPath(QSettings::NativeFormat, QSettings::SystemScope,
                       m_folder.filePath(QStringLiteral("system")));
}

void OlderSettings::set(const QString &entry, const QVariant &value, const QString &application)
{
    // QSettings hands out what it wrote from memory. Written under another name, it is read
    // from the disk, as it would be by another process.
    const QString writerFile = m_folder.filePath(QStringLiteral("writer%1.conf").arg(m_writerFiles++));
    QFile::copy(fileName(application), writerFile);
    {
        QSettings settings(writerFile, QSettings::IniFormat);
        settings.beginGroup(QStringLiteral("Gesture"));
        settings.setValue(entry, value);
    }
    writeFile(contentsOf(writerFile), application);
}

QVariant OlderSettings::value(const QString &entry) const
{
    const QSettings settings(fileName(kFakeHost), QSettings::IniFormat);
    return settings.value(QLatin1String("Gesture/") + entry);
}

QStringList OlderSettings::entries() const
{
    QSettings settings(fileName(kFakeHost), QSettings::IniFormat);
    settings.beginGroup(QStringLiteral("Gesture"));
    return settings.allKeys();
}

void OlderSettings::writeFile(const QByteArray &contents)
{
    writeFile(contents, kFakeHost);
}

QByteArray OlderSettings::readFile() const
{
    return contentsOf(fileName(kFakeHost));
}

void OlderSettings::writeFile(const QByteArray &contents, const QString &application)
{
    const QString name = fileName(application);
    QDir().mkpath(QFileInfo(name).path());
    QFile file(name);
    if (!file.open(QIODevice::WriteOnly) || file.write(contents) != contents.size())
        qFatal("cannot write %s", qPrintable(name));
}

QString OlderSettings::fileName(const QString &application) const
{
    return m_folder.filePath(QStringLiteral("Orlanto/%1.conf").arg(application));
}

} // namespace tests
