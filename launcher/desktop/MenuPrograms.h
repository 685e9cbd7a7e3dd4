// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "launcher/desktop/DesktopMenu.h"
#include "launcher/programs/LaunchEnvironment.h"

#include <QByteArray>
#include <QMetaType>
#include <QString>
#include <QStringList>

#include <functional>

namespace launcher {

// A program that the desktop's menus show.
struct MenuProgram
{
    QByteArray typed; // as its entry starts it
    QByteArray path; // its file
    QString name; // in the wanted language
    QString icon; // a name in the icon theme or a path; may be empty
};

// Finds the programs of the desktop's menus in which gestures can work: those made with Qt
// Widgets. A script counts if there is a profile or are settings for it, or if its entry says that
// it is made with Qt.
class MenuPrograms
{
public:
    // `locale` is a name such as "de_AT". A profile is looked for in `profileFolders`.
    MenuPrograms(const DesktopMenu::Places &places, const Environment &environment,
                 const QStringList &profileFolders, const QString &locale);

    // Calls `found` for each program, once, in no special order. Calls `progress` with the number
    // of entries that were looked at and of all; stops when that returns false.
    void find(const std::function<void(const MenuProgram &)> &found,
              const std::function<bool(int, int)> &progress) const;

private:
    [[nodiscard]] bool canHaveGestures(const MenuProgram &program, const QByteArray &categories,
                                       const QList<QByteArray> &libraryFolders) const;

    DesktopMenu::Places m_places;
    Environment m_environment;
    QStringList m_profileFolders;
    QString m_locale;
};

} // namespace launcher

Q_DECLARE_METATYPE(launcher::MenuProgram)
