// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDir>
#include <QString>
#include <QStringList>

// The files and folders that a program's host needs, relative to the file of this library. That works
// in a build tree and in an installation.
namespace gesturewidget {

// The environment variable in which the launcher tells a program that a script starts which name the
// script has, see chooseScriptName(). Such a program cannot know it, and its settings have that name.
inline constexpr char kNameVariable[] = "GESTUREWIDGET_NAME";

// The running program's name in lower case, see chooseProgramName().
[[nodiscard]] QString programName();
// Chooses the name by which settings and profile of a program are found. People know a program by
// the name that they type, which may be a link to a file of another name. The candidates are, in
// this order: the name `typed`, the name of `file`, and that without an ending such as ".bin". The
// first one for which one of `folders` holds a profile is chosen; without a profile, the last one.
// A program that an interpreter runs has the name of its script.
[[nodiscard]] QString chooseProgramName(const QString &typed, const QString &file,
                                        const QStringList &folders);
// The same for a script, before it runs. `interpreter` is the name of the file that the first line of
// the script names. A script has the name of its file. If that has an ending such as ".sh", as "run.sh"
// has, people know the link to it: the name is then `typed`, without such an ending.
[[nodiscard]] QString chooseScriptName(const QString &typed, const QString &file,
                                       const QString &interpreter, const QStringList &folders);
// The name of the running program's profile if the launcher gives it the name `given`: that one, unless
// only programName() has a profile.
[[nodiscard]] QString profileName(const QString &given);
// The module of this Qt version, beside this library.
[[nodiscard]] QString moduleFile();
// The user's own folder for settings.
[[nodiscard]] QString ownFolder();
// The folders for settings that an administrator provides for all users, the one that counts first
// in front: below those of the environment variable XDG_CONFIG_DIRS.
[[nodiscard]] QStringList siteFolders();
// The file with the bindings for a program. It need not exist.
[[nodiscard]] QString settingsFile(const QString &program);
// The file with the commands that a program has ever shown, see CatalogueFile. It need not exist.
[[nodiscard]] QString catalogueFile(const QString &program);
// The same for a program whose bindings are in the file `settings`: a file beside it. Empty if
// `settings` is empty.
[[nodiscard]] QString catalogueFileBeside(const QString &settings);
// The user's own profile for a program. The file need not exist.
[[nodiscard]] QString ownProfileFile(const QString &program);
// Folders with profiles; the first one that holds a profile counts. First come those of the
// environment variable GESTUREWIDGET_PROFILES, separated by colons, then the user's own folder,
// then the administrator's, then the installed ones.
[[nodiscard]] QStringList profileFolders();
// The same for a library or program in `folder`.
[[nodiscard]] QStringList profileFolders(const QDir &folder);

} // namespace gesturewidget
