// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/menus/UiMenuItem.h"

#include "sdk/chx/CHxUICommandItem.h"
#include "sdk/OwnCode.h"

namespace gesturewidget {

UiMenuItem::UiMenuItem(const QString &identifier, const QString &text, const QString &tip)
    : m_identifier(identifier)
    , m_tip(tip)
{
    m_texts.setText(text);
    m_texts.setStatusTip(tip);
}

UiMenuItem::~UiMenuItem() = default;

void UiMenuItem::SetCommandItem(CHxUICommandItem *item)
{
    m_command = item;
    m_texts.setStatusTip(item && m_tip.isEmpty() ? item->GetTip().toQString() : m_tip);
}

std::unique_ptr<EntryAction> UiMenuItem::newAction()
{
    auto action = std::make_unique<EntryAction>(this);
    copyTexts(action.get());
    QObject::connect(&m_texts, &QAction::changed, action.get(), [this, shown = action.get()] {
        const OwnCode ours;
        copyTexts(shown);
    });
    return action;
}

void UiMenuItem::copyTexts(EntryAction *action) const
{
    action->setText(m_texts.text());
    action->setStatusTip(m_texts.statusTip());
}

} // namespace gesturewidget
