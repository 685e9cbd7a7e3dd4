#pragma once

#include "sdk/od/OdEditorReactor.h"
#include "sdk/od/OdRxObject.h"
#include "sdk/od/OdSmartPtr.h"

// The source of editor notifications.
//
//     odedEditor()->addReactor(this);
//
// Reactors are not owned; they are called in the order in which they were added, over a
// copy of the list, so one may add or remove reactors from inside a notification.
class SDK_EXPORT OdEditor : public OdRxObject
{
public:
    ~OdEditor() override;

    // Adding a reactor a second time does nothing.
    virtual void addReactor(OdEditorReactor *reactor) = 0;
    virtual void removeReactor(OdEditorReactor *reactor) = 0;

protected:
    OdEditor() = default;
};

using OdEditorPtr = OdSmartPtr<OdEditor>;

// The process's editor. Empty until a host has set one.
[[nodiscard]] SDK_EXPORT OdEditorPtr odedEditor();

// For hosts: sets the editor that odedEditor() gives out; null takes it away.
SDK_EXPORT void odedSetEditor(OdEditor *editor);
