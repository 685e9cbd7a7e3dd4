// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/chx/CHxUICommandItemCollection.h"

#include <vector>

namespace gesturewidget {

// The commands that modules have added to the workspace.
class UiCommandItemCollection : public CHxUICommandItemCollection
{
public:
    UiCommandItemCollection();
    ~UiCommandItemCollection() override;

    // Ignores null and an item that was added before.
    void Add(CHxUICommandItem *item) override;
    void remove(const CHxUICommandItem *item);
    [[nodiscard]] const std::vector<CHxUICommandItem *> &items() const { return m_items; }

private:
    std::vector<CHxUICommandItem *> m_items;
};

} // namespace gesturewidget
