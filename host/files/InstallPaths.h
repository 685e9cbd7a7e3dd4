#pragma once

#include <QDir>
#include <QString>
#include <QStringList>

// Where a program's host finds what it needs, seen from this library's own file: in a build
// tree and in an installation alike.
namespace gesturewidget {

// The running program's name in lower case, see chooseProgramName().
[[nodiscard]] QString programName();
// A program may be started by a link that is named as people know it, to a file that is
// not. Of the name `typed`, that of the `file` and that without an ending such as ".bin" it
// is the first that one of `folders` has a profile for; without a profile, the last. A
// program that an interpreter runs is called as its script.
[[nodiscard]] QString chooseProgramName(const QString &typed, const QString &file,
                                        const QStringList &folders);
// The module of this Qt version, beside this library.
[[nodiscard]] QString moduleFile();
// Where the bindings for a program are kept.
[[nodiscard]] QString settingsFile(const QString &program);
// Where the commands that a program has ever shown are kept, see CatalogueFile.
[[nodiscard]] QString catalogueFile(const QString &program);
// The same for a program whose bindings are in the file `settings`: beside them. Empty when
// that is.
[[nodiscard]] QString catalogueFileBeside(const QString &settings);
// The profile of one's own for a program, whether or not there is one.
[[nodiscard]] QString ownProfileFile(const QString &program);
// Folders with profiles, in the order in which they count: those of the environment
// variable GESTUREWIDGET_PROFILES, separated by colons, the user's own, the installed ones.
[[nodiscard]] QStringList profileFolders();
// The same, seen from a library or program in `folder`.
[[nodiscard]] QStringList profileFolders(const QDir &folder);

} // namespace gesturewidget
