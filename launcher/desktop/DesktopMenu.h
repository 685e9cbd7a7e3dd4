#pragma once

#include "launcher/Outcome.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace launcher {

// Makes a program start with gestures from the desktop's menus, and brings back how it was.
//
// A desktop entry in the user's own folder stands for the installed one of the same name. So
// a copy of the installed one is put there that starts the program by the launcher; it bears
// the key "X-MouseGestures=true". A file without that key is somebody's own and stays.
class DesktopMenu
{
public:
    struct Places
    {
        QString own; // $XDG_DATA_HOME/applications
        QStringList installed; // the folders of the others, the first counts most
        QByteArray searchPath; // PATH
        QByteArray launcher; // its full path
    };

    // Places of the running process.
    [[nodiscard]] static Places usualPlaces(const QByteArray &searchPath, const QByteArray &launcher);

    explicit DesktopMenu(const Places &places);

    // `typed` is the program as typed, `path` its file. Writes a copy of each of its entries,
    // or none. Once more renews them, and removes those whose entries are gone.
    [[nodiscard]] Outcome enable(const QByteArray &typed, const QByteArray &path) const;
    // Removes the copies. `path` is empty when the program is gone. Nothing to remove is fine,
    // the output says so.
    [[nodiscard]] Outcome disable(const QByteArray &typed, const QByteArray &path) const;

    // What the desktop calls the program; empty when it has no entry for it.
    [[nodiscard]] QString nameOf(const QByteArray &typed, const QByteArray &path) const;

private:
    // Whether a program as an entry names it is the file `path`.
    [[nodiscard]] bool isProgram(const QByteArray &named, const QByteArray &path) const;
    // Names of the installed entries that start the program, below their folder.
    [[nodiscard]] QStringList entriesOf(const QByteArray &typed, const QByteArray &path) const;
    // Of the folders the file that counts; empty when there is none.
    [[nodiscard]] QString installedFile(const QString &name) const;
    // Names of the copies that start the program, below the user's own folder.
    [[nodiscard]] QStringList copiesFor(const QByteArray &typed, const QByteArray &path) const;

    Places m_places;
};

} // namespace launcher
