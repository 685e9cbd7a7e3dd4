// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/chx/CHxUIMenuItemCollection.h"

namespace gesturewidget {

class MenuMirror;

// The window's menu bars, one entry each. Nothing can be added or removed.
class UiMenuBars : public CHxUIMenuItemCollection
{
public:
    explicit UiMenuBars(MenuMirror &mirror);
    ~UiMenuBars() override;

    [[nodiscard]] int GetCount() const override;
    [[nodiscard]] CHxUIMenuItem *GetItem(int index) const override;
    void Append(CHxUIMenuItem *) override { }
    void Remove(CHxUIMenuItem *) override { }

private:
    MenuMirror &m_mirror;
};

} // namespace gesturewidget
