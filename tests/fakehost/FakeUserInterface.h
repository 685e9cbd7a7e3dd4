// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/chx/CHxUICommandItem.h"
#include "sdk/chx/CHxUICommandItemCollection.h"
#include "sdk/chx/CHxUICommandManager.h"
#include "sdk/chx/CHxUIManager.h"
#include "sdk/chx/CHxUIMenu.h"
#include "sdk/chx/CHxUIMenuItem.h"
#include "sdk/chx/CHxUIMenuItemCollection.h"
#include "sdk/chx/CHxUIWorkspace.h"
#include "tests/fakehost/CallLog.h"

#include <memory>
#include <vector>

namespace tests {

// A command item whose texts are plain members.
class FakeCommandItem : public CHxUICommandItem
{
public:
    [[nodiscard]] CHxString GetIdentifier() const override { return passed(identifier); }
    [[nodiscard]] CHxString GetCommandString() const override { return passed(command); }
    [[nodiscard]] CHxString GetCaption() const override { return passed(caption); }
    [[nodiscard]] CHxString GetTip() const override { return passed(tip); }
    [[nodiscard]] QIcon GetSmallIcon() const override { return passed(smallIcon); }
    [[nodiscard]] QIcon GetLargeIcon() const override { return passed(largeIcon); }
    void SetName(const CHxString &name) override
    {
        FakeFault::pass();
        caption = name.toQString();
    }
    void SetMacro(const CHxString &macro) override
    {
        FakeFault::pass();
        command = macro.toQString();
    }
    void SetStatusText(const CHxString &text) override
    {
        FakeFault::pass();
        tip = text.toQString();
    }

    QString identifier;
    QString command;
    QString caption;
    QString tip;
    QIcon smallIcon;
    QIcon largeIcon;
};

class FakeMenuItemCollection : public CHxUIMenuItemCollection
{
public:
    [[nodiscard]] int GetCount() const override { return passed(static_cast<int>(items.size())); }
    [[nodiscard]] CHxUIMenuItem *GetItem(int index) const override;
    void Append(CHxUIMenuItem *item) override
    {
        FakeFault::pass();
        items.push_back(item);
    }
    void Remove(CHxUIMenuItem *item) override;

    // May hold nulls.
    std::vector<CHxUIMenuItem *> items;
};

class FakeMenuItem : public CHxUIMenuItem
{
public:
    [[nodiscard]] CHxString GetIdentifier() const override { return passed(identifier); }
    [[nodiscard]] CHxString GetText() const override { return passed(text); }
    void SetText(const CHxString &newText) override
    {
        FakeFault::pass();
        text = newText.toQString();
    }
    [[nodiscard]] CHxUICommandItem *GetCommandItem() const override { return passed(command); }
    void SetCommandItem(CHxUICommandItem *item) override
    {
        FakeFault::pass();
        command = item;
    }
    [[nodiscard]] CHxUIMenuItemCollection *GetSubItems() const override
    {
        return passed(subItems.get());
    }

    QString identifier;
    QString text;
    CHxUICommandItem *command = nullptr;
    // Null for an entry that opens no menu.
    std::unique_ptr<FakeMenuItemCollection> subItems;
};

class FakeMenu : public CHxUIMenu
{
public:
    [[nodiscard]] CHxUIMenuItemCollection *GetItems() override
    {
        return passed(hasItems) ? &items : nullptr;
    }

    bool hasItems = true;
    FakeMenuItemCollection items;
};

// Notes "workspace.addCommandItem IDENTIFIER".
class FakeWorkspace : public CHxUIWorkspace, public CHxUICommandItemCollection
{
public:
    explicit FakeWorkspace(CallLog *log)
        : m_log(log)
    {
    }

    [[nodiscard]] CHxString GetName() const override { return passed(name); }
    [[nodiscard]] bool IsCurrent() const override { return passed(current); }
    [[nodiscard]] CHxUICommandItemCollection *GetCommandItems() override
    {
        return passed(static_cast<CHxUICommandItemCollection *>(this));
    }
    [[nodiscard]] CHxUIMenuItemCollection *GetMenuItems() override { return passed(&menus); }
    void Add(CHxUICommandItem *item) override;

    QString name;
    bool current = false;
    // The workspace's top-level menus.
    FakeMenuItemCollection menus;
    std::vector<CHxUICommandItem *> commandItems;

private:
    CallLog *m_log;
};

// Notes "ui.workspaces", "ui.menus", "ui.find WORKSPACE IDENTIFIER", "ui.createCommandItem
// IDENTIFIER FLAGS", "ui.removeCommandItem IDENTIFIER", "ui.createMenuItem FLAGS",
// "ui.destroyMenuItem TEXT", "ui.refresh REBUILD".
class FakeUIManager : public CHxUIManager
{
public:
    explicit FakeUIManager(CallLog *log)
        : m_log(log)
    {
    }

    [[nodiscard]] std::unique_ptr<CHxIterator<CHxUIWorkspace>> NewWorkspaceIterator() override;
    [[nodiscard]] std::unique_ptr<CHxIterator<CHxUIMenu>> NewMenuIterator() override;
    [[nodiscard]] CHxUICommandItem *FindCommandItem(const CHxString &workspace,
                                                    const CHxString &identifier) override;
    [[nodiscard]] CHxUICommandItem *CreateCommandItem(const CHxString &identifier, int flags) override;
    [[nodiscard]] bool Contains(const CHxUICommandItem *item) const override;
    void RemoveCommandItem(CHxUICommandItem *item) override;
    [[nodiscard]] CHxUIMenuItem *CreateMenuItem(int flags, const CHxString &identifier,
                                                const CHxString &text, const CHxString &tip) override;
    void DestroyMenuItem(CHxUIMenuItem *item) override;
    void Refresh(bool rebuild) override;

    // A workspace without menus; null ones are added to `workspaces` by hand.
    FakeWorkspace *addWorkspace(const QString &name, bool current);
    // A menu bar, and the top-level item below.
    FakeMenu *addMenu();
    // An entry appended to `parent` (null: owned, but in no collection). `isMenu` gives it
    // sub-items of its own.
    FakeMenuItem *addItem(FakeMenuItemCollection *parent, const QString &text, bool isMenu,
                          const QString &identifier = {}, CHxUICommandItem *command = nullptr);

    // False: the operation gives out null, which no host should do.
    bool hasWorkspaceIterator = true;
    bool hasMenuIterator = true;
    std::vector<CHxUIWorkspace *> workspaces;
    std::vector<CHxUIMenu *> menus;
    // Command items created by modules.
    std::vector<std::unique_ptr<FakeCommandItem>> commandItems;
    // Menu items created by modules or by addItem and not destroyed.
    std::vector<std::unique_ptr<FakeMenuItem>> menuItems;
    // Number of iterators that still exist.
    int iteratorsAlive = 0;

private:
    CallLog *m_log;
    std::vector<std::unique_ptr<FakeWorkspace>> m_workspaces;
    std::vector<std::unique_ptr<FakeMenu>> m_menus;
};

class FakeCommandGroup : public CHxUICommandGroup
{
public:
    explicit FakeCommandGroup(int *iteratorsAlive)
        : m_iteratorsAlive(iteratorsAlive)
    {
    }

    [[nodiscard]] CHxString GetName() const override
    {
        ++nameReadings;
        return passed(name);
    }
    [[nodiscard]] std::unique_ptr<CHxIterator<CHxUICommandItem>> NewCommandIterator() override;

    QString name;
    mutable int nameReadings = 0;
    // False: NewCommandIterator() gives out null, which no host should do.
    bool hasCommandIterator = true;
    // May hold nulls.
    std::vector<CHxUICommandItem *> commands;

private:
    int *m_iteratorsAlive;
};

class FakeCommandManager : public CHxUICommandManager
{
public:
    [[nodiscard]] std::unique_ptr<CHxIterator<CHxUICommandGroup>> NewGroupIterator() override;

    // A group; null ones are added to `groups` by hand.
    FakeCommandGroup *addGroup(const QString &name);
    // A command in the last group (one is made if there is none).
    FakeCommandItem *addCommand(const QString &identifier, const QString &command,
                                const QString &caption, const QString &tip = {});

    // False: NewGroupIterator() gives out null, which no host should do.
    bool hasGroupIterator = true;
    std::vector<CHxUICommandGroup *> groups;
    // Number of iterators that still exist.
    int iteratorsAlive = 0;

private:
    std::vector<std::unique_ptr<FakeCommandGroup>> m_groups;
    std::vector<std::unique_ptr<FakeCommandItem>> m_commands;
};

} // namespace tests
