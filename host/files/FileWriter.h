// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

namespace gesturewidget {

// Replaces a file in one step. Everything that this project keeps on disk is written here.
//
// The new content goes into another file in the same folder, is flushed to the disk, read back and
// compared, and only then takes the old one's name. So a reader sees either the whole old or the
// whole new content, and a full disk leaves the old one. A writer that is killed leaves nothing that
// the next writer of the file does not remove, see UnfinishedFile.
//
//     FileWriter writer(path, FileWriter::Readers::Owner);
//     if (!writer.write(content, path + QStringLiteral(".bak")))
//         ...
class FileWriter
{
public:
    // The users who may read the file afterwards.
    enum class Readers {
        Owner, // mode 0600, also where the old file had another
        // The mode of the old file, or what the process's mask leaves of 0666. Where no mode can be set,
        // the one that the file system has given.
        Usual
    };

    // A link is followed: the file that it leads to is replaced.
    FileWriter(const QString &path, Readers readers);

    // Returns whether the file has this content. False leaves everything as it was. Refuses to
    // replace anything but a file, and makes no folders.
    [[nodiscard]] bool write(const QByteArray &content) const;
    // Does the same, and keeps the old file under the name `second` when the new content is on the
    // disk. This takes no space if a file can have two names there; otherwise the old file is
    // copied. Replaces an older file of that name, but never a folder, a pipe or a link. In that
    // case, and if there is no old file, does nothing and returns false.
    [[nodiscard]] bool write(const QByteArray &content, const QString &second) const;

private:
    [[nodiscard]] bool write(const QByteArray &content, const QString *second) const;
    [[nodiscard]] bool keepAs(const QString &second) const;

    QString m_path; // without links at its end
    Readers m_readers;
};

} // namespace gesturewidget
