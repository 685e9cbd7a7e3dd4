// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/od/OdEditor.h"
#include "sdk/od/OdStaticRxObject.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <vector>

class CHxEditorReactor;

namespace gesturewidget {

// Tells its reactors about the main frame: when the first main window is there, and when the last one
// goes. A CHxEditorReactor that is added after the window appeared is told from the event loop, so that
// its owner can finish adding it.
class HostEditor : public OdStaticRxObject<OdEditor>
{
public:
    HostEditor();
    ~HostEditor() override;

    void addReactor(OdEditorReactor *reactor) override;
    void removeReactor(OdEditorReactor *reactor) override;

    // Call this when the main window's menus are complete. A second call before
    // notifyMainFrameDestroyed() has no effect.
    void notifyMainFrameCreated(QWidget *frame);
    // Another main window is the current one. Reactors that are added later are told about it.
    void setMainFrame(QWidget *frame);
    // Call this when the main window goes away. `frame` may be half destroyed and is only passed
    // on. Reactors that were never told about the window are not told now.
    void notifyMainFrameDestroyed(QWidget *frame);

private:
    struct Entry
    {
        OdEditorReactor *reactor;
        bool knowsFrame;
    };

    void tellUninformed();
    CHxEditorReactor *frameReactor(OdEditorReactor *reactor) const;

    std::vector<Entry> m_reactors;
    QPointer<QWidget> m_frame;
    bool m_frameCreated = false;
    QObject m_context; // queued calls end with it
};

} // namespace gesturewidget
