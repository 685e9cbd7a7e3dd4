#pragma once

#include <QString>

// What a program writes on its menus, as plain text.
namespace gesturewidget {

// A caption without its mnemonic and without a shortcut after a tab: "&Open...\tCtrl+O"
// becomes "Open...", "Save && Close" becomes "Save & Close". A mnemonic in brackets of its
// own, as Asian translations have it, goes with its brackets.
[[nodiscard]] QString plainCaption(const QString &text);

// A tip as one line: markup, line breaks and runs of spaces are taken out.
[[nodiscard]] QString plainTip(const QString &text);

// What a top-level menu is for, from its object name or caption, to be compared: "Tools",
// "&Tools", "toolsMenu" and "tools_menu" all make "tools".
[[nodiscard]] QString menuRole(const QString &name);

} // namespace gesturewidget
