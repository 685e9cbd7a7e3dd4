// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/chx/CHxApplication.h"
#include "sdk/chx/CHxMainFrame.h"
#include "sdk/chx/CHxSystemServices.h"
#include "sdk/chx/CHxTextOutput.h"
#include "tests/fakehost/CallLog.h"
#include "tests/fakehost/FakeDocuments.h"
#include "tests/fakehost/FakePlatform.h"
#include "tests/fakehost/FakeProfileStore.h"
#include "tests/fakehost/FakeUserInterface.h"

#include <QPointer>
#include <QWidget>

#include <vector>

namespace tests {

// A whole host under the test's control: what it holds, what it answers, which of its
// parts are missing, and what it was asked. It is the process's host while it lives.
//
//     tests::FakeHost host;
//     host.commands.addCommand("ID_LINE", "line", "Line");
//     host.hasProfileStore = false;
//     ...
//     QCOMPARE(host.log.startingWith("store.set"), QStringList());
//
// Beside the calls that its parts note, the services note "run COMMAND WAIT", "message
// STYLE", "help TOPIC", "text TEXT IMMEDIATE" and "mode VALUE".
class FakeHost : public CHxSystemServices,
                 public CHxMainFrame,
                 public CHxApplication,
                 public CHxTextOutput
{
public:
    FakeHost();
    ~FakeHost() override;

    // CHxSystemServices
    [[nodiscard]] CHxMainFrame *GetMainFrame() override;
    [[nodiscard]] CHxDocumentManager *GetDocumentManager() override;
    [[nodiscard]] CHxApplication *GetApplication() override;
    [[nodiscard]] CHxTextOutput *GetTextOutput() override;
    [[nodiscard]] CHxProfileStore *GetProfileStore() override;
    [[nodiscard]] CHxUIManager *GetUIManager() override;
    [[nodiscard]] CHxUICommandManager *GetUICommandManager() override;
    [[nodiscard]] CHxUIMenuItemCollection *GetMenuItems() override;
    CHxCommandResultPtr RunCommand(const CHxString &command, bool wait) override;
    [[nodiscard]] bool UsesLargeIcons() const override { return passed(largeIcons); }
    [[nodiscard]] CHxString GetApplicationName() const override { return passed(applicationName); }
    int ShowMessage(const CHxString &text, const CHxString &caption, int style) override;
    [[nodiscard]] CHxString GetMessageCaption() const override { return passed(messageCaption); }
    void ShowHelp(int topic) override;

    // CHxMainFrame
    [[nodiscard]] QWidget *GetMainWindow() const override { return passed(mainWindow); }

    // CHxApplication
    [[nodiscard]] qint16 GetMode() const override { return passed(mode); }
    void SetMode(qint16 newMode) override;

    // CHxTextOutput
    void SetText(const CHxString &text, bool immediate) override;

    // Takes the services away from GetHxSystemServices(), or gives them back.
    void setPresent(bool present);

    // Adds a top-level menu to the one menu bar, to the one workspace ("Default", current)
    // and to GetMenuItems(); all three are made on first use.
    FakeMenuItem *addTopLevelMenu(const QString &text, const QString &identifier = {});

    CallLog log;
    FakeCommandStack stack{&log};
    FakeEditor editor{&log};
    FakeDocumentManager documents{&log};
    FakeProfileStore store{&log};
    FakeUIManager ui{&log};
    FakeCommandManager commands;
    // GetMenuItems() returns this.
    FakeMenuItemCollection menuItems;

    bool hasMainFrame = true;
    bool hasDocumentManager = true;
    bool hasApplication = true;
    bool hasTextOutput = true;
    bool hasProfileStore = true;
    bool hasUIManager = true;
    bool hasCommandManager = true;
    bool hasMenuItems = true;
    // RunCommand() gives an empty pointer back.
    bool hasCommandResult = true;

    // Null until the test sets it; not owned.
    QPointer<QWidget> mainWindow;
    qint16 mode = 0;
    bool largeIcons = false;
    QString applicationName = QStringLiteral("fakehost");
    QString messageCaption = QStringLiteral("Fake host");
    // The text shown at the moment.
    QString text;
    // The answer of ShowMessage() and its last arguments.
    int messageAnswer = kMessageOk;
    QString messageText;
    QString lastMessageCaption;
    // Results given out by RunCommand() and not released yet.
    int resultsAlive = 0;
};

} // namespace tests
