// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace gesturewidget {

// Keeps other writers of a file away: it locks the file "<path>.lock" until it is destroyed.
//
// The kernel frees the lock when its owner ends, however it ends. So a lock file that is left
// behind blocks nobody. A QLockFile whose owner was killed while writing it blocks everybody for
// its stale time.
class FileLock
{
public:
    enum class Result {
        Held,
        Busy, // somebody else has held it for all this time
        Impossible // the folder cannot be written, or the name is not that of a file
    };

    // Waits for the lock for at most `patience` milliseconds. Does not wait if it is impossible.
    FileLock(const QString &path, int patience);
    ~FileLock();
    FileLock(const FileLock &) = delete;
    FileLock &operator=(const FileLock &) = delete;

    [[nodiscard]] Result result() const { return m_result; }
    [[nodiscard]] bool isHeld() const { return m_result == Result::Held; }

private:
    QString m_path;
    int m_file = -1;
    Result m_result = Result::Impossible;
};

} // namespace gesturewidget
