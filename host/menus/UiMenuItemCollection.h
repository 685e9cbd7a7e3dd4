// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/chx/CHxUIMenuItemCollection.h"

#include <QPointer>
#include <QWidget>

#include <vector>

namespace gesturewidget {

class MenuMirror;

// The items of one of the program's menus or menu bars. Empty if that is gone.
class UiMenuItemCollection : public CHxUIMenuItemCollection
{
public:
    // `place` may be null.
    UiMenuItemCollection(MenuMirror &mirror, QWidget *place);
    ~UiMenuItemCollection() override;

    [[nodiscard]] int GetCount() const override;
    [[nodiscard]] CHxUIMenuItem *GetItem(int index) const override;
    // Only entries of modules can be added and removed; the program's own entries stay.
    void Append(CHxUIMenuItem *item) override;
    void Remove(CHxUIMenuItem *item) override;

    [[nodiscard]] QWidget *source() const { return m_place; }

private:
    const std::vector<CHxUIMenuItem *> &items() const;

    MenuMirror &m_mirror;
    QPointer<QWidget> m_place;
    mutable std::vector<CHxUIMenuItem *> m_items;
    mutable int m_generation = -1;
};

} // namespace gesturewidget
