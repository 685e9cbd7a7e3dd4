// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "launcher/desktop/ExecLine.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <functional>

namespace launcher {

// A desktop entry, a file "NAME.desktop" that puts a program into the desktop's menus. It is read
// and changed line by line. Lines that are not asked for stay as they are, to the byte.
class DesktopFile
{
public:
    // Returns false when the file does not exist, cannot be read, or has no "Type" as every desktop
    // entry has.
    [[nodiscard]] bool read(const QString &path);
    [[nodiscard]] QByteArray content() const;

    // The value of a key of the entry itself, as the file holds it. If a key is repeated, the last
    // value wins. Null when there is none.
    [[nodiscard]] QByteArray value(const QByteArray &key) const;
    // The value of a key in the language of `locale`, such as "de_AT" or "sr@latin", as far as the
    // entry has it, without escapes.
    [[nodiscard]] QByteArray translated(const QByteArray &key, const QString &locale) const;
    // Sets a key of the entry itself where it stands, or adds it at the entry's end. `value` is
    // escaped already, see ExecLine::escaped().
    void setValue(const QByteArray &key, const QByteArray &value);
    // Returns whether the entry starts a program and was not deleted by its owner.
    [[nodiscard]] bool isApplication() const;
    // Returns whether it is a copy that was made to start a program with gestures.
    [[nodiscard]] bool isOurs() const { return value("X-MouseGestures") == "true"; }
    [[nodiscard]] ExecLine exec() const { return ExecLine::parse(value("Exec")); }

    // Puts `launcher` before the program in "Exec" of the entry and of its actions, where
    // `isWanted` returns true for the command.
    void startBy(const QByteArray &launcher, const std::function<bool(const ExecLine &)> &isWanted);

private:
    struct Line
    {
        QByteArray text;
        QByteArray group; // the group that the line, or the group's head, belongs to

        [[nodiscard]] bool isOfEntry() const { return group == "Desktop Entry"; }
        [[nodiscard]] QByteArray key() const; // empty when it has none
        [[nodiscard]] QByteArray value() const; // never null
    };

    QList<Line> m_lines;
};

} // namespace launcher
