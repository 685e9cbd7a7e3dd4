// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/fakehost/FakeHost.h"

#include <utility>

namespace tests {
namespace {

class FakeCommandResult : public CHxCommandResult
{
public:
    explicit FakeCommandResult(int *alive)
        : m_alive(alive)
    {
        ++*m_alive;
    }
    ~FakeCommandResult() override { --*m_alive; }

    void addRef() override { ++m_references; }
    void release() override
    {
        if (--m_references == 0)
            delete this;
    }
    [[nodiscard]] long numRefs() const override { return m_references; }
    [[nodiscard]] bool IsFound() const override { return true; }

private:
    int *m_alive;
    long m_references = 1;
};

QString flag(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

} // namespace

FakeHost::FakeHost()
{
    setPresent(true);
    odedSetCommandStack(&stack);
    odedSetEditor(&editor);
}

FakeHost::~FakeHost()
{
    setPresent(false);
    odedSetCommandStack(nullptr);
    odedSetEditor(nullptr);
}

CHxMainFrame *FakeHost::GetMainFrame()
{
    return passed(hasMainFrame) ? this : nullptr;
}

CHxDocumentManager *FakeHost::GetDocumentManager()
{
    return passed(hasDocumentManager) ? &documents : nullptr;
}

CHxApplication *FakeHost::GetApplication()
{
    return passed(hasApplication) ? this : nullptr;
}

CHxTextOutput *FakeHost::GetTextOutput()
{
    return passed(hasTextOutput) ? this : nullptr;
}

CHxProfileStore *FakeHost::GetProfileStore()
{
    return passed(hasProfileStore) ? &store : nullptr;
}

CHxUIManager *FakeHost::GetUIManager()
{
    return passed(hasUIManager) ? &ui : nullptr;
}

CHxUICommandManager *FakeHost::GetUICommandManager()
{
    return passed(hasCommandManager) ? &commands : nullptr;
}

CHxUIMenuItemCollection *FakeHost::GetMenuItems()
{
    return passed(hasMenuItems) ? &menuItems : nullptr;
}

CHxCommandResultPtr FakeHost::RunCommand(const CHxString &command, bool wait)
{
    const Misdeed misdeed = log.add(QStringLiteral("run %1 %2").arg(command.toQString(), flag(wait)));
    if (!altered(misdeed, hasCommandResult))
        return {};
    return CHxCommandResultPtr(new FakeCommandResult(&resultsAlive), kOdRxAttach);
}

int FakeHost::ShowMessage(const CHxString &message, const CHxString &caption, int style)
{
    messageText = message.toQString();
    lastMessageCaption = caption.toQString();
    const Misdeed misdeed = log.add(QStringLiteral("message %1").arg(style));
    return altered(misdeed, messageAnswer);
}

void FakeHost::ShowHelp(int topic)
{
    log.add(QStringLiteral("help %1").arg(topic));
}

void FakeHost::SetMode(qint16 newMode)
{
    mode = newMode;
    log.add(QStringLiteral("mode %1").arg(newMode));
}

void FakeHost::SetText(const CHxString &newText, bool immediate)
{
    text = newText.toQString();
    log.add(QStringLiteral("text %1 %2").arg(text, flag(immediate)));
}

void FakeHost::setPresent(bool present)
{
    SetHxSystemServices(present ? this : nullptr);
}

FakeMenuItem *FakeHost::addTopLevelMenu(const QString &menuText, const QString &identifier)
{
    if (ui.menus.empty()) {
        ui.addMenu();
        ui.addWorkspace(QStringLiteral("Default"), true);
        ui.addItem(&menuItems, QString(), true);
    }
    FakeMenuItem *menu = ui.addItem(nullptr, menuText, true, identifier);
    static_cast<FakeMenu *>(ui.menus.front())->items.items.push_back(menu);
    static_cast<FakeWorkspace *>(ui.workspaces.front())->menus.items.push_back(menu);
    menuItems.items.front()->GetSubItems()->Append(menu);
    return menu;
}

} // namespace tests
