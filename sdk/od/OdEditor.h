// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "OdEditorReactor.h"
#include "OdRxObject.h"
#include "OdSmartPtr.h"

// Sends the editor's notifications.
//
//     odedEditor()->addReactor(this);
//
// The editor does not own reactors. It calls them in the order in which they were added, over a
// copy of the list: a reactor may add or remove reactors during a notification.
class GESTUREWIDGET_SDK_EXPORT OdEditor : public OdRxObject
{
public:
    ~OdEditor() override;

    // Ignores null and a reactor that is there already.
    virtual void addReactor(OdEditorReactor *reactor) = 0;
    // Ignores null and a reactor that is not there.
    virtual void removeReactor(OdEditorReactor *reactor) = 0;

protected:
    OdEditor() = default;
};

using OdEditorPtr = OdSmartPtr<OdEditor>;

// The process's editor. An empty pointer until a host sets one.
[[nodiscard]] GESTUREWIDGET_SDK_EXPORT OdEditorPtr odedEditor();

// For hosts: sets the editor that odedEditor() returns. Null removes it. The editor stays the
// host's; it must outlive every pointer that odedEditor() returned.
GESTUREWIDGET_SDK_EXPORT void odedSetEditor(OdEditor *editor);
