// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "launcher/programs/Subject.h"
#include "tests/support/FolderTest.h"

#include <QString>

namespace tests {

// Base class of tests that need a person's home: folders for settings and menus, and a PATH with
// the programs of the test. None of the machine's programs are there.
class HomeTest : public FolderTest
{
    Q_OBJECT

protected:
    // Installs a program and its entry "<name>.desktop", whose "Name" is `title`.
    void install(const QString &name, const QString &title, const QByteArray &more = {}) const;
    // The same for a program that is not made with Qt Widgets.
    void installPlain(const QString &name, const QString &title) const;
    void uninstall(const QString &name) const;

    [[nodiscard]] QString programFile(const QString &name) const;
    [[nodiscard]] QString entryFile(const QString &name) const;
    // The entry in the person's own folder.
    [[nodiscard]] QString ownEntryFile(const QString &name) const;
    [[nodiscard]] QString settingsFile(const QString &name) const;
    // The stored value of a key of the module; "<none>" if it is not there.
    [[nodiscard]] QString stored(const QString &name, const QString &key) const;
    [[nodiscard]] static launcher::Subject subject(const char *name);
    // Remembers commands in a menu of a program, as if it had run with gestures.
    void remember(const QString &name, const QStringList &identifiers,
                  const QString &menu = QStringLiteral("Draw")) const;

    // Installs this test itself as a program that runs with gestures at the moment: a file with the
    // plug-in's name is loaded.
    void installSelfRunning(const QString &name, const QString &title);
    // Writes a profile that knows the tasks "Sketching", which has first bindings, and "Modelling", and
    // says that the program uses the middle button itself.
    void writeProfile(const QString &name) const;

protected Q_SLOTS:
    void init();
};

} // namespace tests
