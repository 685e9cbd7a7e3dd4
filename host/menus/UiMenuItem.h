// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/window/EntryAction.h"
#include "sdk/chx/CHxUIMenuItem.h"

#include <QAction>
#include <QString>

#include <memory>

namespace gesturewidget {

// A menu entry of a module. Each menu that shows it has an action of its own for it. The
// user-interface manager owns it.
class UiMenuItem : public CHxUIMenuItem
{
public:
    UiMenuItem(const QString &identifier, const QString &text, const QString &tip);
    ~UiMenuItem() override;

    [[nodiscard]] CHxString GetIdentifier() const override { return m_identifier; }
    [[nodiscard]] CHxString GetText() const override { return m_texts.text(); }
    void SetText(const CHxString &text) override { m_texts.setText(text.toQString()); }
    [[nodiscard]] CHxUICommandItem *GetCommandItem() const override { return m_command; }
    // The entry shows the command's tip in the status bar, unless it has a tip of its own.
    void SetCommandItem(CHxUICommandItem *item) override;
    [[nodiscard]] CHxUIMenuItemCollection *GetSubItems() const override { return nullptr; }

    // Returns an action that shows the entry's texts, also after they have changed.
    [[nodiscard]] std::unique_ptr<EntryAction> newAction();

private:
    void copyTexts(EntryAction *action) const;

    QString m_identifier;
    QString m_tip;
    QAction m_texts; // is in no menu
    CHxUICommandItem *m_command = nullptr;
};

} // namespace gesturewidget
