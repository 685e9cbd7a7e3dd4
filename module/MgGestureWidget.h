// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "gesture/MgMouseGestureTracker.h"
#include "module/CHxGestureCommand.h"
#include "sdk/chx/CHxDocumentManagerReactor.h"
#include "sdk/chx/CHxEditorReactor.h"
#include "sdk/chx/hx_OdRxModule.h"
#include "sdk/od/OdStaticRxObject.h"

class CHxDocument;
class CHxString;
class CHxUIMenuItem;
class QWidget;

// The module's one object. It hooks the tracker and the configuration command into the
// host, follows the host's documents and main frame, and takes everything back when the
// main frame goes.
//
// If a host object is missing, the steps that need it are skipped silently. Exceptions of the
// host do not leave these operations; the call that threw is skipped.
class MgGestureWidget : public hx_OdRxModule, public CHxDocumentManagerReactor, public CHxEditorReactor
{
public:
    // Touches no host service and registers nothing.
    MgGestureWidget();
    // Unregisters nothing: mainFrameDestroyed() has done that.
    ~MgGestureWidget() override;

    // Registers the command, this object as reactor, and the tracker with every open
    // document.
    void initApp() override;
    // Does nothing. mainFrameDestroyed() undoes initApp().
    void uninitApp() override;

    // A new document gets the tracker.
    void DocumentCreated(CHxDocument *document) override;
    // The document loses the tracker here, not in the notifications of its destruction.
    void DatabaseDetached(CHxDocument *document) override;

    // The menus are complete: adds the menu entry. `frame` is not used.
    void mainFrameCreated(QWidget *frame) override;
    // Unregisters everything but the editor reactor. `frame` is not used.
    void mainFrameDestroyed(QWidget *frame) override;

    // The first top-level menu of any workspace with that identifier, letter case
    // respected; null when there is none. Sub-menus are not searched.
    [[nodiscard]] CHxUIMenuItem *GetMenuItem(const CHxString &id);
    // Appends the entry to the Tools menu, and makes its command item if there is none.
    // Appends another one at every call. Without a current workspace it does nothing.
    void LoadMenu();
    // Removes one entry and its command item: the first whose text is the entry's, letter
    // case ignored.
    void UnLoadMenu();

protected:
    // Both belong to this object; the host must not delete them.
    MgMouseGestureTracker tracker;
    OdStaticRxObject<CHxGestureCommand> command;

private:
    void addTracker(CHxDocument *document);
    void removeTracker(CHxDocument *document);
    template <class Change> void changeMenu(Change change);
    void addMenuEntry();
    void removeMenuEntry();

    bool m_isChangingMenu = false;
};
