#pragma once

#include <QString>
#include <QStringList>

// Where a program's host finds what it needs, seen from this library's own file: in a build
// tree and in an installation alike.
namespace host {

// The name of the running program's file, in lower case.
[[nodiscard]] QString programName();
// The module of this Qt version, beside this library.
[[nodiscard]] QString moduleFile();
// Where the bindings for a program are kept.
[[nodiscard]] QString settingsFile(const QString &program);
// Folders with profiles, in the order in which they count: those of the environment
// variable GESTUREWIDGET_PROFILES, separated by colons, the user's own, the installed ones.
[[nodiscard]] QStringList profileFolders();

} // namespace host
