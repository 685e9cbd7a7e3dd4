// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/window/EntryAction.h"
#include "sdk/chx/CHxUIMenuItem.h"

#include <QPointer>
#include <QString>
#include <QWidget>

namespace gesturewidget {

// A menu entry of a module. The user-interface manager owns it.
class UiMenuItem : public CHxUIMenuItem
{
public:
    UiMenuItem(const QString &identifier, const QString &text, const QString &tip);
    ~UiMenuItem() override;

    [[nodiscard]] CHxString GetIdentifier() const override { return m_identifier; }
    [[nodiscard]] CHxString GetText() const override { return m_action.text(); }
    void SetText(const CHxString &text) override { m_action.setText(text.toQString()); }
    [[nodiscard]] CHxUICommandItem *GetCommandItem() const override { return m_command; }
    // The entry shows the command's tip in the status bar, unless it has a tip of its own.
    void SetCommandItem(CHxUICommandItem *item) override;
    [[nodiscard]] CHxUIMenuItemCollection *GetSubItems() const override { return nullptr; }

    [[nodiscard]] EntryAction &action() { return m_action; }

    // The menu or menu bar that contains it; null if none does.
    QPointer<QWidget> place;
    // True if it belongs to the Tools menu. Which menu that is may change.
    bool isForTools = false;

private:
    QString m_identifier;
    QString m_tip;
    EntryAction m_action;
    CHxUICommandItem *m_command = nullptr;
};

} // namespace gesturewidget
