// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

namespace gesturewidget {

// Keeps other writers of a file away: it locks the file "<path>.lock" until it is destroyed.
//
// The kernel frees the lock when its owner ends, however it ends. So a lock file that is left
// behind blocks nobody. A QLockFile whose owner was killed while writing it blocks everybody for
// its stale time.
//
// A program that waits also locks "<path>.lock.next" meanwhile. While somebody does, nobody else
// takes a free lock. Otherwise a program that writes again and again could keep the others out.
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
    // A file that one process at a time can hold. It exists only while somebody has it open.
    class Token
    {
    public:
        explicit Token(const QByteArray &name);
        ~Token();
        Token(const Token &) = delete;
        Token &operator=(const Token &) = delete;

        // Tries once to take it, and makes the file if necessary.
        [[nodiscard]] Result take();
        [[nodiscard]] bool isHeld() const { return m_file >= 0; }
        // True if the file exists.
        [[nodiscard]] bool isThere() const;

    private:
        QByteArray m_name;
        int m_file = -1;
    };

    Token m_token;
    Result m_result = Result::Impossible;
};

} // namespace gesturewidget
