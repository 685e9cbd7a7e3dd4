// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

namespace gesturewidget {

// The whole content of a file. Reading never waits for another program: a pipe or a device of that
// name is closed at once and does not count as a file.
struct FileContent
{
    enum class State {
        Read,
        Missing, // also when a folder of the path is missing or is a file
        NotAFile, // a folder, a pipe, a device
        TooLarge, // larger than the limit
        Unreadable // no permission, or an error of the disk
    };

    // Reads `path`, at most `limit` bytes. Asks for no more memory than the file has bytes. A path
    // that begins with ":/" names one of Qt's resources.
    [[nodiscard]] static FileContent read(const QString &path, qint64 limit);

    [[nodiscard]] bool isRead() const { return state == State::Read; }

    State state = State::Missing;
    QByteArray bytes; // empty unless the file was read
    QString problem; // a few words in the system's language, for Unreadable
};

} // namespace gesturewidget
