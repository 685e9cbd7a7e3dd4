// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

namespace gesturewidget {

// A command of a program, as it was seen last.
struct RememberedCommand
{
    QString identifier; // by which bindings are stored; never empty
    QString command; // the key that finds its action again, see CommandCatalogue
    QString caption;
    QString tip; // one line, may be empty
    QString group; // the top-level menu or the toolbar that it was in, may be empty
    QByteArray icon; // a PNG file, may be empty
    bool isInToolBar = false; // and not in a menu
    QStringList way{}; // the captions of the menus between the group and the command

    friend bool operator==(const RememberedCommand &a, const RememberedCommand &b)
    {
        return a.identifier == b.identifier && a.command == b.command && a.caption == b.caption
            && a.tip == b.tip && a.group == b.group && a.icon == b.icon && a.isInToolBar == b.isInToolBar
            && a.way == b.way;
    }
};

} // namespace gesturewidget
