// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/chx/CHxUIMenuItem.h"

#include <QAction>
#include <QPointer>
#include <QString>

namespace gesturewidget {

class MenuMirror;

// One of the program's own menus or menu entries. Modules can read it. Setting anything has no
// effect: the program's menus stay as they are.
class ActionMenuItem : public CHxUIMenuItem
{
public:
    ActionMenuItem(MenuMirror &mirror, QAction *action);
    ~ActionMenuItem() override;

    // For a top-level menu "ID_Mn" and its name; for a command its identifier; otherwise empty.
    [[nodiscard]] CHxString GetIdentifier() const override;
    [[nodiscard]] CHxString GetText() const override;
    void SetText(const CHxString &) override { }
    [[nodiscard]] CHxUICommandItem *GetCommandItem() const override;
    void SetCommandItem(CHxUICommandItem *) override { }
    [[nodiscard]] CHxUIMenuItemCollection *GetSubItems() const override;

    void setIdentifier(const QString &identifier) { m_identifier = identifier; }
    [[nodiscard]] QAction *source() const { return m_action; }

private:
    MenuMirror &m_mirror;
    QPointer<QAction> m_action;
    QString m_identifier;
    // What the catalogue has returned for the action, and its assignment() then. A module asks for
    // every entry at every gesture.
    mutable CHxUICommandItem *m_command = nullptr;
    mutable int m_assignment = -1;
};

} // namespace gesturewidget
