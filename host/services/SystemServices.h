// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/services/HelpGuide.h"
#include "sdk/chx/CHxSystemServices.h"

#include <QString>

#include <memory>

class QMainWindow;

namespace gesturewidget {

class CommandCatalogue;
class CommandStack;
class HostEditor;
class MainWindows;
class ToolsMenu;
struct ProgramProfile;

// Implements everything that a module can ask its host for, over the program's main windows: all
// answers are about the current one. Owns all of it except the documents, the application and the
// main frame.
//
//     gesturewidget::SystemServices services(window, profile, &documents, settingsFile);
//     odedSetCommandStack(&services.commandStack());
//     odedSetEditor(&services.editor());
//     SetHxSystemServices(&services);
//
// The caller that sets these must reset them before this object is destroyed. The windows may be
// destroyed first.
class SystemServices : public CHxSystemServices
{
public:
    // `window` is the first window; more can be added to windows(). `documents` may be null and must
    // outlive this. `settingsFile` is the program's own INI file, see ProfileStore; the commands are
    // kept beside it. `guide` is what ShowHelp() opens.
    SystemServices(QMainWindow *window, const ProgramProfile &profile, CHxDocumentManager *documents,
                   const QString &settingsFile, const HelpGuide &guide = HelpGuide());
    ~SystemServices() override;

    [[nodiscard]] MainWindows &windows();
    [[nodiscard]] CommandStack &commandStack();
    [[nodiscard]] HostEditor &editor();
    [[nodiscard]] CommandCatalogue &catalogue();
    // Call this when the program's menus are complete. Their commands are then remembered for the
    // next start, see CatalogueMemory.
    void startRemembering();
    void stopRemembering();
    [[nodiscard]] const ToolsMenu &toolsMenu() const;
    // Shows a line in the status bar for some seconds.
    void showForAWhile(const QString &text);
    // Not owned; null until set.
    void setApplication(CHxApplication *application);
    void setMainFrame(CHxMainFrame *mainFrame);

    [[nodiscard]] CHxMainFrame *GetMainFrame() override;
    [[nodiscard]] CHxDocumentManager *GetDocumentManager() override;
    [[nodiscard]] CHxApplication *GetApplication() override;
    [[nodiscard]] CHxTextOutput *GetTextOutput() override;
    [[nodiscard]] CHxProfileStore *GetProfileStore() override;
    [[nodiscard]] CHxUIManager *GetUIManager() override;
    [[nodiscard]] CHxUICommandManager *GetUICommandManager() override;
    [[nodiscard]] CHxUIMenuItemCollection *GetMenuItems() override;

    CHxCommandResultPtr RunCommand(const CHxString &command, bool wait) override;
    // Forgets the commands of RunCommand() that wait for the event loop.
    void dropWaitingCommands();

    // True if the current window's icons are 32 pixels high or more.
    [[nodiscard]] bool UsesLargeIcons() const override;
    [[nodiscard]] CHxString GetApplicationName() const override;

    int ShowMessage(const CHxString &text, const CHxString &caption, int style) override;
    [[nodiscard]] CHxString GetMessageCaption() const override;
    void ShowHelp(int topic) override;

private:
    class Private;
    std::unique_ptr<Private> m_d;
};

} // namespace gesturewidget
