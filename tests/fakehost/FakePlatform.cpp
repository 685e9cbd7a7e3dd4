// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/fakehost/FakePlatform.h"

#include <algorithm>

namespace tests {

void FakeCommandStack::removeCommand(OdEdCommand *command)
{
    m_log->add(QStringLiteral("stack.remove ") + command->localName().toQString());
    commands.erase(std::remove(commands.begin(), commands.end(), command), commands.end());
}

OdEdCommand *FakeCommandStack::lookupCommand(const OdString &name) const
{
    const auto matches = [&name](const OdEdCommand *command) {
        const QString &wanted = name.toQString();
        return command->globalName().toQString().compare(wanted, Qt::CaseInsensitive) == 0
            || command->localName().toQString().compare(wanted, Qt::CaseInsensitive) == 0;
    };
    const auto found = std::find_if(commands.begin(), commands.end(), matches);
    return found == commands.end() ? nullptr : *found;
}

void FakeEditor::removeReactor(OdEditorReactor *reactor)
{
    m_log->add(QStringLiteral("editor.remove"));
    reactors.erase(std::remove(reactors.begin(), reactors.end(), reactor), reactors.end());
}

} // namespace tests
