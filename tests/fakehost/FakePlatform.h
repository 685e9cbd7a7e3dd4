// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/od/OdEdCommand.h"
#include "sdk/od/OdEdCommandStack.h"
#include "sdk/od/OdEditor.h"
#include "tests/fakehost/CallLog.h"

#include <vector>

namespace tests {

// A command stack that notes "stack.add NAME" and "stack.remove NAME" (local names).
class FakeCommandStack : public OdEdCommandStack
{
public:
    explicit FakeCommandStack(CallLog *log)
        : m_log(log)
    {
    }

    void addRef() override { ++references; }
    void release() override { --references; }
    [[nodiscard]] long numRefs() const override { return references; }

    void addCommand(OdEdCommand *command) override
    {
        m_log->add(QStringLiteral("stack.add ") + command->localName().toQString());
        commands.push_back(command);
    }
    void removeCommand(OdEdCommand *command) override;
    [[nodiscard]] OdEdCommand *lookupCommand(const OdString &name) const override;

    // References held by smart pointers at the moment; 0 between calls.
    long references = 0;
    std::vector<OdEdCommand *> commands;

private:
    CallLog *m_log;
};

// An editor that notes "editor.add" and "editor.remove".
class FakeEditor : public OdEditor
{
public:
    explicit FakeEditor(CallLog *log)
        : m_log(log)
    {
    }

    void addRef() override { ++references; }
    void release() override { --references; }
    [[nodiscard]] long numRefs() const override { return references; }

    void addReactor(OdEditorReactor *reactor) override
    {
        m_log->add(QStringLiteral("editor.add"));
        reactors.push_back(reactor);
    }
    void removeReactor(OdEditorReactor *reactor) override;

    // References held by smart pointers at the moment; 0 between calls.
    long references = 0;
    std::vector<OdEditorReactor *> reactors;

private:
    CallLog *m_log;
};

} // namespace tests
