// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/chx/CHxUIMenuItemCollection.h"

namespace gesturewidget {

class UiManager;

// The current window's menu bars, one entry each. Nothing can be added or removed.
class UiMenuBars : public CHxUIMenuItemCollection
{
public:
    explicit UiMenuBars(UiManager &manager);
    ~UiMenuBars() override;

    [[nodiscard]] int GetCount() const override;
    [[nodiscard]] CHxUIMenuItem *GetItem(int index) const override;
    void Append(CHxUIMenuItem *) override { }
    void Remove(CHxUIMenuItem *) override { }

private:
    UiManager &m_manager;
};

} // namespace gesturewidget
