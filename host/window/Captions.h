// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

// The texts on a program's menus as plain text.
namespace gesturewidget {

// Returns a caption without its mnemonic and without a shortcut after a tab: "&Open...\tCtrl+O"
// becomes "Open...", "Save && Close" becomes "Save & Close". A mnemonic in brackets of its own, as
// in Asian translations, is removed with its brackets.
[[nodiscard]] QString plainCaption(const QString &text);

// Returns a tip as one line, without markup, line breaks and repeated spaces.
[[nodiscard]] QString plainTip(const QString &text);

// Returns a short form of a top-level menu's object name or caption, for comparing: "Tools",
// "&Tools", "toolsMenu" and "tools_menu" all give "tools".
[[nodiscard]] QString menuRole(const QString &name);

} // namespace gesturewidget
