// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace gesturewidget {

// What is known about whether a program died in the code of the gestures: by a page of a process
// that is gone, see CrashPage, or by the settings. Gestures then stay off until a person switches
// them on again, so that a program that they make unusable can be used.
class CrashNote
{
public:
    // `settings` is the file with the program's settings.
    CrashNote(const QString &program, const QString &settings);

    // True if gestures must stay off. Changes nothing.
    [[nodiscard]] bool isThere() const;
    // Puts what the pages tell into the settings, and removes the pages. Keeps the pages if the
    // settings cannot be written, so that the next start finds them again.
    void keep() const;
    // Forgets the crash. Returns whether this is on the disk; if not, puts one line into `problem`.
    [[nodiscard]] bool remove(QString *problem) const;

private:
    [[nodiscard]] bool isInSettings() const;

    QString m_program;
    QString m_settings;
};

} // namespace gesturewidget
