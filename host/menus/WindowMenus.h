// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/menus/MenuEntries.h"
#include "host/menus/MenuMirror.h"
#include "host/menus/ToolsMenu.h"

namespace gesturewidget {

// The menus of one main window: what modules see of them, and what modules have added to them. The
// destructor takes that out again.
struct WindowMenus
{
    // `window` may be null. `toolsMenu`: see ProgramProfile.
    WindowMenus(QWidget *window, CommandCatalogue &catalogue, MenuChanges &watcher,
                ModuleEntries &moduleEntries, const QString &toolsMenu);
    ~WindowMenus();
    Q_DISABLE_COPY_MOVE(WindowMenus)

    const QWidget *const window; // for comparing only
    ToolsMenu tools;
    MenuEntries entries;
    MenuMirror mirror;
};

} // namespace gesturewidget
