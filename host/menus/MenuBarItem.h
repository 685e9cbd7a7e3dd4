// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/chx/CHxUIMenuItem.h"

#include <QMenuBar>
#include <QPointer>

namespace gesturewidget {

class MenuMirror;

// A menu bar as an entry whose sub-items are the top-level menus. Its texts are empty, and it
// cannot be changed.
class MenuBarItem : public CHxUIMenuItem
{
public:
    MenuBarItem(MenuMirror &mirror, QMenuBar *bar);
    ~MenuBarItem() override;

    [[nodiscard]] CHxString GetIdentifier() const override { return {}; }
    [[nodiscard]] CHxString GetText() const override { return {}; }
    void SetText(const CHxString &) override { }
    [[nodiscard]] CHxUICommandItem *GetCommandItem() const override { return nullptr; }
    void SetCommandItem(CHxUICommandItem *) override { }
    [[nodiscard]] CHxUIMenuItemCollection *GetSubItems() const override;

    [[nodiscard]] QMenuBar *source() const { return m_bar; }

private:
    MenuMirror &m_mirror;
    QPointer<QMenuBar> m_bar;
};

} // namespace gesturewidget
