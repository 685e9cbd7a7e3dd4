// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/menus/WindowMenus.h"

#include "host/commands/CommandCatalogue.h"

namespace gesturewidget {

WindowMenus::WindowMenus(QWidget *mainWindow, CommandCatalogue &catalogue, MenuChanges &watcher,
                         ModuleEntries &moduleEntries, const QString &toolsMenu)
    : window(mainWindow)
    , tools(watcher, toolsMenu)
    , entries(moduleEntries, mainWindow, watcher, tools)
    , mirror(catalogue, watcher, tools, entries)
{
    QObject::connect(&catalogue, &CommandCatalogue::menusChanged, &entries,
                     [this, &watcher](const QObject *changed) {
                         if (changed == &watcher)
                             entries.restoreLater();
                     });
}

WindowMenus::~WindowMenus() = default;

} // namespace gesturewidget
