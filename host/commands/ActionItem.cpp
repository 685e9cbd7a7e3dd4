// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/commands/ActionItem.h"

#include "host/commands/ContrastIcon.h"
#include "host/commands/ListEntries.h"
#include "host/commands/RememberedIcon.h"
#include "host/files/CommandNames.h"
#include "host/window/Captions.h"
#include "host/window/EntryAction.h"
#include "sdk/QtBridge.h"

#include <QMenu>
#include <QSet>
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
        QString tip = plainTip(text);
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

// Returns whether a person can choose the action in some menu, toolbar or other widget, as Qt decides
// it for shortcuts. Menus may contain each other; `seen` are those whose entry was asked about.
bool hasEnabledPlace(const QAction &action, QSet<const QAction *> &seen)
{
    const QWidgetList widgets = qtbridge::widgetsOf(action);
    return widgets.isEmpty() || std::any_of(widgets.begin(), widgets.end(), [&seen](QWidget *widget) {
               if (!widget->isEnabled())
                   return false;
               const auto *menu = qobject_cast<const QMenu *>(widget);
               if (!menu)
                   return true;
               const QAction *entry = menu->menuAction();
               if (!entry->isVisible() || !entry->isEnabled() || seen.contains(entry))
                   return false;
               seen.insert(entry);
               return hasEnabledPlace(*entry, seen);
           });
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
    m_look.caption = command.caption.isEmpty() ? m_key : command.caption;
    m_look.plainTip = command.tip;
    setIcon(iconFromPng(command.icon));
    here.group = command.group;
    here.way = command.way;
    here.isInToolBar = command.isInToolBar;
    setName(m_look.caption);
}

RememberedCommand ActionItem::remembered() const
{
    RememberedCommand command;
    command.identifier = m_identifier;
    command.command = m_key;
    command.caption = m_look.caption;
    command.tip = m_look.plainTip;
    command.group = here.group;
    command.isInToolBar = here.isInToolBar;
    command.way = here.way;
    return command;
}

void ActionItem::setCaption(const QString &caption)
{
    m_look.caption = caption;
    m_look.name.clear(); // the tip may be new too
    setName(caption);
}

void ActionItem::setName(const QString &name)
{
    if (name == m_look.name && !name.isEmpty())
        return;
    m_look.name = name;
    m_look.tip = namedTip(remembered(), name);
}

void ActionItem::setAction(QAction *action)
{
    m_look.action = action;
    m_look.address = action;
    m_hasHadAction = true;
    m_look.texts.clear(); // the tip may be from an earlier start
    read();
}

void ActionItem::showIn(const QWidget *from, const QWidget *to)
{
    if (m_look.address)
        m_others.push_back({from, m_look, here});
    const auto isThere = [to](const Elsewhere &other) { return other.window == to; };
    const auto found = std::find_if(m_others.begin(), m_others.end(), isThere);
    if (found == m_others.end()) {
        m_look.action.clear();
        m_look.address = nullptr;
        here.isPresent = false;
        here.wasPresent = false;
        return;
    }
    m_look = std::move(found->look);
    here = std::move(found->here);
    m_others.erase(found);
}

bool ActionItem::isUsable() const
{
    QSet<const QAction *> seen;
    return here.isPresent && m_look.action && m_look.action->isEnabled()
        && hasEnabledPlace(*m_look.action, seen);
}

bool ActionItem::isPresentIn(const QWidget *window) const
{
    return std::any_of(m_others.begin(), m_others.end(), [window](const Elsewhere &other) {
        return other.window == window && other.here.isPresent;
    });
}

void ActionItem::forget(const QWidget *window)
{
    const auto isOfWindow = [window](const Elsewhere &other) { return other.window == window; };
    m_others.erase(std::remove_if(m_others.begin(), m_others.end(), isOfWindow), m_others.end());
}

bool ActionItem::read()
{
    if (!m_look.action)
        return false;
    QString caption = captionOf(m_look.action);
    if (caption.isEmpty())
        caption = m_key;
    // Texts are slow to read, and most changes concern the state.
    const QStringList texts{caption, m_look.action->statusTip(), m_look.action->toolTip(),
                            m_look.action->whatsThis()};
    const bool hasNewTexts = texts != m_look.texts;
    if (hasNewTexts) {
        m_look.texts = texts;
        m_look.plainTip = tipAmong(texts.mid(1), caption);
        setCaption(caption);
    }
    setIcon(m_look.action->icon());
    return hasNewTexts;
}

// Most changes of an action do not change its icon: keep the halo that was drawn.
void ActionItem::setIcon(const QIcon &icon)
{
    if (icon.cacheKey() == m_look.icon.cacheKey())
        return;
    m_look.icon = icon;
    m_look.contrastIcon = contrastIcon(icon);
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
