// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "launcher/Outcome.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace launcher {

// Makes a program start with gestures from the desktop's menus, and brings the old state back.
//
// A desktop entry in the user's own folder replaces the installed entry with the same ID. So this
// puts a copy of the installed entry there that starts the program by the launcher, and marks it
// with the key "X-MouseGestures=true". A file without that key is the user's own and stays.
class DesktopMenu
{
public:
    struct Places
    {
        QString own; // $XDG_DATA_HOME/applications
        QStringList installed; // the other folders; the first one counts most
        QByteArray searchPath; // PATH
        QByteArray launcher; // its full path
    };

    // The places of the running process.
    [[nodiscard]] static Places usualPlaces(const QByteArray &searchPath, const QByteArray &launcher);

    explicit DesktopMenu(const Places &places);

    // `typed` is the program as typed, `path` its file. Writes a copy of each of its entries, or
    // none. Two entries that look the same in a menu become one there. A second call renews the
    // copies and removes those whose entries are gone.
    [[nodiscard]] Outcome enable(const QByteArray &typed, const QByteArray &path) const;
    // Removes the copies. `path` is empty when the program is gone. If there is nothing to remove,
    // the output says so.
    [[nodiscard]] Outcome disable(const QByteArray &typed, const QByteArray &path) const;

    // Returns whether there is a copy that starts the program with gestures.
    [[nodiscard]] bool isEnabled(const QByteArray &typed, const QByteArray &path) const;

    // Names of all entries in a folder and below it, in order.
    [[nodiscard]] static QStringList namesIn(const QString &folder);
    // The desktop-file ID: "kde/draw.desktop" is "kde-draw.desktop". Entries with equal IDs are one
    // entry, and the one in the first folder counts.
    [[nodiscard]] static QString identifierOf(QString name);

    // The desktop's name for the program; empty when the desktop has no entry for it.
    [[nodiscard]] QString nameOf(const QByteArray &typed, const QByteArray &path) const;

private:
    enum class Named {
        AsTyped, // the copies that start the program by the typed name, if there are any
        Any
    };

    // Returns whether a program as an entry names it is the file `path`.
    [[nodiscard]] bool isProgram(const QByteArray &named, const QByteArray &path) const;
    // Names of the installed entries that start the program, below their folder.
    [[nodiscard]] QStringList entriesOf(const QByteArray &typed, const QByteArray &path) const;
    // The file of that name in the first folder that has one; empty when there is none.
    [[nodiscard]] QString installedFile(const QString &name) const;
    // Names of the copies that start the program, below the user's own folder.
    [[nodiscard]] QStringList copiesFor(const QByteArray &typed, const QByteArray &path,
                                        Named which) const;
    // The user's own file in place of an entry; empty when there is none or only a copy.
    [[nodiscard]] QString ownFileFor(const QString &name) const;
    // Lists anew which entry of the user's own folder opens which type of file. An entry there hides
    // the list's line about the installed one, so a file manager would no longer offer the program.
    // Does nothing if desktop-file-utils is not installed.
    void refreshFileTypes() const;

    Places m_places;
};

} // namespace launcher
