#pragma once

#include "sdk/chx/CHxString.h"
#include "sdk/od/OdRxObject.h"
#include "sdk/od/OdSmartPtr.h"
#include "sdk/SdkExport.h"

#include <QtGlobal>

class CHxApplication;
class CHxDocumentManager;
class CHxMainFrame;
class CHxProfileStore;
class CHxTextOutput;
class CHxUICommandManager;
class CHxUIManager;
class CHxUIMenuItemCollection;

// What came of a command that was run.
class SDK_EXPORT CHxCommandResult : public OdRxObject
{
public:
    ~CHxCommandResult() override;

    // Whether something was found to run.
    [[nodiscard]] virtual bool IsFound() const = 0;

protected:
    CHxCommandResult() = default;
};

using CHxCommandResultPtr = OdSmartPtr<CHxCommandResult>;

// Everything that a module can ask of its host. Owned by the host; what it gives out as a
// plain pointer is the host's too and stays valid as long as these services do.
class SDK_EXPORT CHxSystemServices
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
    // May be null: nothing is kept then.
    [[nodiscard]] virtual CHxProfileStore *GetProfileStore() = 0;
    // May be null.
    [[nodiscard]] virtual CHxUIManager *GetUIManager() = 0;
    // May be null.
    [[nodiscard]] virtual CHxUICommandManager *GetUICommandManager() = 0;
    // The host's menu bars as entries, their top-level menus as sub-items; may be null.
    [[nodiscard]] virtual CHxUIMenuItemCollection *GetMenuItems() = 0;

    // Runs a command: a macro such as "^C^C_GESTURE" cancels what runs and runs a command
    // of the command stack; any other string runs the program's command of that name.
    // `wait` false returns at once and runs it when control is back in the event loop.
    // The result may be empty.
    virtual CHxCommandResultPtr RunCommand(const CHxString &command, bool wait) = 0;

    // Whether the user has chosen large icons.
    [[nodiscard]] virtual bool UsesLargeIcons() const = 0;
    // The program's name for settings; the same from start to start.
    [[nodiscard]] virtual CHxString GetApplicationName() const = 0;

    // Shows a message and waits for the answer. `style` is a combination of the numbers
    // below; the answer is the button pressed, kMessageOk or kMessageCancel.
    virtual int ShowMessage(const CHxString &text, const CHxString &caption, int style) = 0;
    // What the host writes over its messages, its own name.
    [[nodiscard]] virtual CHxString GetMessageCaption() const = 0;
    // Opens the help on a topic; 0 is its first page.
    virtual void ShowHelp(int topic) = 0;

    // Message styles: buttons OK and Cancel (1) with a warning sign (48).
    static constexpr int kMessageOkCancelWarning = 49;
    static constexpr int kMessageOk = 1;
    static constexpr int kMessageCancel = 2;

protected:
    CHxSystemServices() = default;
};

// The services of the process's host; null when there is none.
[[nodiscard]] SDK_EXPORT CHxSystemServices *GetHxSystemServices();

// For hosts: sets what GetHxSystemServices() gives out; null takes it away.
SDK_EXPORT void SetHxSystemServices(CHxSystemServices *services);
