// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/commands/CommandStack.h"

#include "sdk/od/OdEdCommand.h"

#include <algorithm>

namespace gesturewidget {
namespace {

QString comparable(const OdString &name)
{
    const QString text = name.toQString().toLower();
    return text.startsWith(QLatin1Char('_')) ? text.mid(1) : text;
}

} // namespace

CommandStack::CommandStack() = default;

CommandStack::~CommandStack() = default;

void CommandStack::addCommand(OdEdCommand *command)
{
    const auto isCommand = [command](const auto &known) { return known.get() == command; };
    if (!command || std::any_of(m_commands.begin(), m_commands.end(), isCommand))
        return;
    m_commands.emplace_back(command);
}

void CommandStack::removeCommand(OdEdCommand *command)
{
    const auto isCommand = [command](const auto &known) { return known.get() == command; };
    m_commands.erase(std::remove_if(m_commands.begin(), m_commands.end(), isCommand), m_commands.end());
}

OdEdCommand *CommandStack::lookupCommand(const OdString &name) const
{
    const QString wanted = comparable(name);
    if (wanted.isEmpty())
        return nullptr;
    const auto isWanted = [&wanted](const auto &command) {
        return comparable(command->globalName()) == wanted || comparable(command->localName()) == wanted;
    };
    const auto found = std::find_if(m_commands.rbegin(), m_commands.rend(), isWanted);
    return found == m_commands.rend() ? nullptr : found->get();
}

} // namespace gesturewidget
