// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QVariant>

namespace tests {

// Gives QSettings an empty folder, so that no test sees or touches the user's settings. It takes
// effect at construction and lasts until the next object is made.
class OlderSettings
{
public:
    OlderSettings();

    // Stores an entry the way an older program did, in group "Gesture".
    void set(const QString &entry, const QVariant &value,
             const QString &application = QStringLiteral("fakehost"));
    // The value of an entry of group "Gesture" on disk; invalid when there is none.
    [[nodiscard]] QVariant value(const QString &entry) const;
    // The names of all entries in group "Gesture" on disk.
    [[nodiscard]] QStringList entries() const;
    // Writes the whole file. The next object that opens the settings reads it.
    void writeFile(const QByteArray &contents);
    [[nodiscard]] QByteArray readFile() const;

private:
    void writeFile(const QByteArray &contents, const QString &application);
    [[nodiscard]] QString fileName(const QString &application) const;

    QTemporaryDir m_folder;
    int m_writerFiles = 0;
};

} // namespace tests
