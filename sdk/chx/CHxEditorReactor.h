// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "../od/OdEditorReactor.h"
#include "CHxFileData.h"

class CHxDatabase;
class CHxSelectionSet;
class CHxString;
class QWidget;

// The editor notifications of the platform and of the host. Every default is empty: override what
// you need. Register with odedEditor()->addReactor().
//
// A host leaves out what it cannot know. That of this project sends mainFrameCreated and
// mainFrameDestroyed only.
class GESTUREWIDGET_SDK_EXPORT CHxEditorReactor : public OdEditorReactor,
                                                  public OdEdCommandStackReactor,
                                                  public OdEdLispEngineReactor
{
public:
    ~CHxEditorReactor() override;

    // The main window exists and its menus are complete. `frame` is the main window, never null.
    // A reactor that is added later is called too, from the event loop.
    virtual void mainFrameCreated(QWidget *frame);
    // The main window goes away. `frame` may be half destroyed, so use it only as a key; it is null
    // when the window is already gone. Not sent to a reactor that did not get mainFrameCreated.
    virtual void mainFrameDestroyed(QWidget *frame);
    // The user's selection now has objects. `set` belongs to the host; never null.
    virtual void selectionSetCreated(CHxSelectionSet *set);
    // The selection is about to be cleared. `set` is valid during the call.
    virtual void selectionSetDestroyed(CHxSelectionSet *set);
    // A drawing is about to be saved to `path` as `type`. `database` is its content, null when
    // the host has no object for it. `version` is the number of the file format, 0 for the newest.
    virtual void beginSaveEx(CHxDatabase *database, const CHxString &path, CHxFileData::FileType type,
                             int version);

protected:
    CHxEditorReactor() = default;
};
