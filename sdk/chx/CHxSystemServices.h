// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "../od/OdRxObject.h"
#include "../od/OdSmartPtr.h"
#include "../SdkExport.h"
#include "CHxString.h"

#include <QtGlobal>

class CHxApplication;
class CHxDocumentManager;
class CHxMainFrame;
class CHxProfileStore;
class CHxTextOutput;
class CHxUICommandManager;
class CHxUIManager;
class CHxUIMenuItemCollection;

// The result of running a command.
class GESTUREWIDGET_SDK_EXPORT CHxCommandResult : public OdRxObject
{
public:
    ~CHxCommandResult() override;

    // True when the host found a command to run.
    [[nodiscard]] virtual bool IsFound() const = 0;

protected:
    CHxCommandResult() = default;
};

using CHxCommandResultPtr = OdSmartPtr<CHxCommandResult>;

// Everything that a module can ask its host for. The host owns this object and every object that
// it returns by plain pointer. These stay valid as long as the services.
class GESTUREWIDGET_SDK_EXPORT CHxSystemServices
{
public:
    Q_DISABLE_COPY_MOVE(CHxSystemServices)
    virtual ~CHxSystemServices();

    // May be null.
    [[nodiscard]] virtual CHxMainFrame *GetMainFrame() = 0;
    // May be null.
    [[nodiscard]] virtual CHxDocumentManager *GetDocumentManager() = 0;
    // May be null.
    [[nodiscard]] virtual CHxApplication *GetApplication() = 0;
    // May be null.
    [[nodiscard]] virtual CHxTextOutput *GetTextOutput() = 0;
    // May be null: then no settings are stored.
    [[nodiscard]] virtual CHxProfileStore *GetProfileStore() = 0;
    // May be null.
    [[nodiscard]] virtual CHxUIManager *GetUIManager() = 0;
    // May be null.
    [[nodiscard]] virtual CHxUICommandManager *GetUICommandManager() = 0;
    // The host's menu bars. The sub-items of each are its top-level menus. May be null.
    [[nodiscard]] virtual CHxUIMenuItemCollection *GetMenuItems() = 0;

    // Runs a command. A macro such as "^C^C_GESTURE" cancels the running command, then runs one
    // from the command stack. Any other string runs the program's command of that name. With
    // `wait` false, returns at once and runs the command from the event loop. The result may be
    // an empty pointer.
    virtual CHxCommandResultPtr RunCommand(const CHxString &command, bool wait) = 0;

    // True when the user has chosen large icons.
    [[nodiscard]] virtual bool UsesLargeIcons() const = 0;
    // The program's name in its settings. It is the same at every start.
    [[nodiscard]] virtual CHxString GetApplicationName() const = 0;

    // Shows a message and waits for the answer. `style` is kMessageOkCancelWarning. Returns the
    // button pressed, kMessageOk or kMessageCancel.
    virtual int ShowMessage(const CHxString &text, const CHxString &caption, int style) = 0;
    // The caption of the host's messages: the host's name.
    [[nodiscard]] virtual CHxString GetMessageCaption() const = 0;
    // Opens a help topic. 0 is the first page.
    virtual void ShowHelp(int topic) = 0;

    // A style for ShowMessage(): buttons OK and Cancel (1) and a warning sign (48).
    static constexpr int kMessageOkCancelWarning = 49;
    // Answers of ShowMessage().
    static constexpr int kMessageOk = 1;
    static constexpr int kMessageCancel = 2;

protected:
    CHxSystemServices() = default;
};

// The services of the process's host. Null when there is no host.
[[nodiscard]] GESTUREWIDGET_SDK_EXPORT CHxSystemServices *GetHxSystemServices();

// For hosts: sets the services that GetHxSystemServices() returns. Null removes them.
GESTUREWIDGET_SDK_EXPORT void SetHxSystemServices(CHxSystemServices *services);
