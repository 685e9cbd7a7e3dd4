// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/commands/ActionItem.h"

#include "host/commands/ContrastIcon.h"
#include "host/commands/RememberedIcon.h"
#include "host/window/Captions.h"
#include "host/window/EntryAction.h"

#include <QMenu>
#include <QWidgetAction>

#include <algorithm>
#include <utility>

namespace gesturewidget {
namespace {

// Gives access to a protected member of Qt.
struct WidgetActionAccess : QWidgetAction
{
    using QWidgetAction::createdWidgets;
};

// True if menus and toolbars show a widget in place of the action. Some programs derive all their
// actions from QWidgetAction although most of them never have a widget.
bool bringsWidget(const QAction *action)
{
    const auto *widgetAction = qobject_cast<const QWidgetAction *>(action);
    return widgetAction
        && (widgetAction->defaultWidget()
            || !(widgetAction->*(&WidgetActionAccess::createdWidgets))().isEmpty());
}

} // namespace

ActionItem::ActionItem(const QString &identifier, const QString &key)
    : m_identifier(identifier)
    , m_key(key)
{
}

ActionItem::~ActionItem() = default;

void ActionItem::recall(const RememberedCommand &command)
{
    m_caption = command.caption.isEmpty() ? m_key : command.caption;
    m_tip = command.tip;
    setIcon(iconFromPng(command.icon));
    group = command.group;
    isInToolBar = command.isInToolBar;
}

void ActionItem::setAction(QAction *action)
{
    m_action = action;
    m_address = action;
    m_hasHadAction = true;
    m_tip.clear(); // may be from an earlier start
    m_tipSource.clear();
    read();
}

void ActionItem::showIn(const QWidget *from, const QWidget *to)
{
    if (m_address)
        m_others.push_back({from, m_action, m_address, m_caption, m_tip, m_tipSource, m_icon,
                            m_contrastIcon, group, isPresent, wasPresent, isInToolBar});
    m_action.clear();
    m_address = nullptr;
    isPresent = false;
    wasPresent = false;
    const auto isShown = [to](const Look &look) { return look.window == to; };
    const auto found = std::find_if(m_others.begin(), m_others.end(), isShown);
    if (found == m_others.end())
        return;
    m_action = found->action;
    m_address = found->address;
    m_caption = std::move(found->caption);
    m_tip = std::move(found->tip);
    m_tipSource = std::move(found->tipSource);
    m_icon = std::move(found->icon);
    m_contrastIcon = std::move(found->contrastIcon);
    group = std::move(found->group);
    isPresent = found->isPresent;
    wasPresent = found->wasPresent;
    isInToolBar = found->isInToolBar;
    m_others.erase(found);
}

bool ActionItem::isPresentIn(const QWidget *window) const
{
    return std::any_of(m_others.begin(), m_others.end(),
                       [window](const Look &look) { return look.window == window && look.isPresent; });
}

void ActionItem::forget(const QWidget *window)
{
    const auto isOfWindow = [window](const Look &look) { return look.window == window; };
    m_others.erase(std::remove_if(m_others.begin(), m_others.end(), isOfWindow), m_others.end());
}

void ActionItem::read()
{
    if (!m_action)
        return;
    m_caption = captionOf(m_action);
    if (m_caption.isEmpty())
        m_caption = m_key;
    const QString tip = m_action->statusTip().isEmpty() ? m_action->toolTip() : m_action->statusTip();
    if (tip != m_tipSource) { // markup is slow to read, and most changes concern the state
        m_tipSource = tip;
        m_tip = plainTip(tip);
    }
    setIcon(m_action->icon());
}

// Most changes of an action do not change its icon: keep the halo that was drawn.
void ActionItem::setIcon(const QIcon &icon)
{
    if (icon.cacheKey() == m_icon.cacheKey())
        return;
    m_icon = icon;
    m_contrastIcon = contrastIcon(icon);
}

bool ActionItem::isCommand(const QAction *action)
{
    return !action->isSeparator() && action->isVisible() && !action->menu() && !bringsWidget(action)
        && !qobject_cast<const EntryAction *>(action)
        && !(action->objectName().isEmpty() && captionOf(action).isEmpty());
}

QString ActionItem::captionOf(const QAction *action)
{
    const QString caption = plainCaption(action->text());
    return caption.isEmpty() ? plainTip(action->toolTip()) : caption;
}

} // namespace gesturewidget
