// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/chx/CHxUIMenu.h"

#include <QMenuBar>
#include <QPointer>

namespace gesturewidget {

class MenuMirror;

// One of the program's menu bars.
class UiMenu : public CHxUIMenu
{
public:
    UiMenu(MenuMirror &mirror, QMenuBar *bar);
    ~UiMenu() override;

    [[nodiscard]] CHxUIMenuItemCollection *GetItems() override;

    [[nodiscard]] QMenuBar *source() const { return m_bar; }

private:
    MenuMirror &m_mirror;
    QPointer<QMenuBar> m_bar;
};

} // namespace gesturewidget
