// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/chx/CHxUICommandItem.h"

#include <QString>

namespace gesturewidget {

// A command that a module has created; it runs a macro. The user-interface manager owns it.
class CommandItem : public CHxUICommandItem
{
public:
    explicit CommandItem(const QString &identifier);
    ~CommandItem() override;

    [[nodiscard]] CHxString GetIdentifier() const override { return m_identifier; }
    // The macro.
    [[nodiscard]] CHxString GetCommandString() const override { return m_macro; }
    [[nodiscard]] CHxString GetCaption() const override;
    // The status text.
    [[nodiscard]] CHxString GetTip() const override { return m_statusText; }
    // No icons.
    [[nodiscard]] QIcon GetSmallIcon() const override { return {}; }
    [[nodiscard]] QIcon GetLargeIcon() const override { return {}; }

    void SetName(const CHxString &name) override { m_name = name.toQString(); }
    void SetMacro(const CHxString &macro) override { m_macro = macro.toQString(); }
    void SetStatusText(const CHxString &text) override { m_statusText = text.toQString(); }

private:
    QString m_identifier;
    QString m_name;
    QString m_macro;
    QString m_statusText;
};

} // namespace gesturewidget
