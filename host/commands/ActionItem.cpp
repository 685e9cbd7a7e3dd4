// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/commands/ActionItem.h"

#include "host/commands/ContrastIcon.h"
#include "host/commands/ListEntries.h"
#include "host/commands/RememberedIcon.h"
#include "host/files/CommandNames.h"
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

// Characters. A longer text is a page of help and no tip.
constexpr int kLongestTip = 200;

// Returns the first of the program's texts that says more than the caption; otherwise the first
// text.
QString tipAmong(const QStringList &texts, const QString &caption)
{
    QString first;
    for (const QString &text : texts) {
        const QString tip = plainTip(text);
        if (tip.size() <= kLongestTip && !repeatsCaption(tip, caption))
            return tip;
        if (first.isEmpty())
            first = tip;
    }
    return first;
}

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
    m_plainTip = command.tip;
    setIcon(iconFromPng(command.icon));
    group = command.group;
    way = command.way;
    isInToolBar = command.isInToolBar;
    setName(m_caption);
}

RememberedCommand ActionItem::remembered() const
{
    RememberedCommand command;
    command.identifier = m_identifier;
    command.command = m_key;
    command.caption = m_caption;
    command.tip = m_plainTip;
    command.group = group;
    command.isInToolBar = isInToolBar;
    command.way = way;
    return command;
}

void ActionItem::setCaption(const QString &caption)
{
    m_caption = caption;
    m_name.clear(); // the tip may be new too
    setName(caption);
}

void ActionItem::setName(const QString &name)
{
    if (name == m_name && !name.isEmpty())
        return;
    m_name = name;
    m_tip = namedTip(remembered(), name);
}

void ActionItem::setAction(QAction *action)
{
    m_action = action;
    m_address = action;
    m_hasHadAction = true;
    m_texts.clear(); // the tip may be from an earlier start
    read();
}

void ActionItem::showIn(const QWidget *from, const QWidget *to)
{
    if (m_address)
        m_others.push_back({from, m_action, m_address, m_caption, m_name, m_tip, m_plainTip, m_texts,
                            m_icon, m_contrastIcon, group, way, isPresent, wasPresent, isInToolBar,
                            isListEntry});
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
    m_name = std::move(found->name);
    m_tip = std::move(found->tip);
    m_plainTip = std::move(found->plainTip);
    m_texts = std::move(found->texts);
    m_icon = std::move(found->icon);
    m_contrastIcon = std::move(found->contrastIcon);
    group = std::move(found->group);
    way = std::move(found->way);
    isPresent = found->isPresent;
    wasPresent = found->wasPresent;
    isInToolBar = found->isInToolBar;
    isListEntry = found->isListEntry;
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

bool ActionItem::read()
{
    if (!m_action)
        return false;
    QString caption = captionOf(m_action);
    if (caption.isEmpty())
        caption = m_key;
    // Texts are slow to read, and most changes concern the state.
    const QStringList texts{caption, m_action->statusTip(), m_action->toolTip(), m_action->whatsThis()};
    const bool hasNewTexts = texts != m_texts;
    if (hasNewTexts) {
        m_texts = texts;
        m_plainTip = tipAmong(texts.mid(1), caption);
        setCaption(caption);
    }
    setIcon(m_action->icon());
    return hasNewTexts;
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
    const QString caption = lastingCaption(*action, plainCaption(action->text()));
    return caption.isEmpty() ? plainTip(action->toolTip()) : caption;
}

} // namespace gesturewidget
