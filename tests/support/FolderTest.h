// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "tests/support/Text.h"

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QTemporaryDir>

#include <memory>

namespace tests {

// contentOf() returns this if there is no readable file.
inline constexpr char kNoFile[] = "<no file>";

// The bytes of a file.
[[nodiscard]] QByteArray contentOf(const QString &path);
// Writes a file and makes its folders. An existing file gets the new content in place, so its
// hard links change too. Returns false when that failed.
[[nodiscard]] bool writeFile(const QString &path, const QByteArray &content);

// Base class of tests over files: each test function gets an empty folder of its own, and an
// unexpected Qt warning fails it.
//
// A test that needs more in init() calls FolderTest::init() first.
class FolderTest : public QObject
{
    Q_OBJECT

protected:
    // The path of something in the folder.
    [[nodiscard]] QString place(const char *name) const { return place(text(name)); }
    [[nodiscard]] QString place(const QString &name) const { return m_folder->filePath(name); }
    // Writes a file in the folder; a failure fails the test.
    void write(const char *name, const QByteArray &content) const { write(place(name), content); }
    void write(const QString &path, const QByteArray &content) const;
    // Makes the folder the home folder of this process, with its settings.
    void useAsHome() const;

    std::unique_ptr<QTemporaryDir> m_folder;

protected Q_SLOTS:
    void init();

private Q_SLOTS:
    void initTestCase();
    void cleanup();
};

} // namespace tests
