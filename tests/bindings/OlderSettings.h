// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QVariant>

namespace tests {

// A folder of its own for QSettings, so that no test sees or touches the user's. In force
// from construction on; the next one takes over.
class OlderSettings
{
public:
    OlderSettings();

    // Stores an entry the way an older program did, in group "Gesture".
    void set(const QString &entry, const QVariant &value,
             const QString &application = QStringLiteral("fakehost"));
    // The value of an entry of group "Gesture" on disk; invalid when there is none.
    [[nodiscard]] QVariant value(const QString &entry) const;
    // Entry names of group "Gesture" as they are on disk now.
    [[nodiscard]] QStringList entries() const;
    // The file itself, to be read by whoever opens the settings next.
    void writeFile(const QByteArray &contents);
    [[nodiscard]] QByteArray readFile() const;

private:
    void writeFile(const QByteArray &contents, const QString &application);
    [[nodiscard]] QString fileName(const QString &application) const;

    QTemporaryDir m_folder;
    int m_writerFiles = 0;
};

} // namespace tests
