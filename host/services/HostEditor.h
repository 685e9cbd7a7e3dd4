#pragma once

#include "sdk/od/OdEditor.h"
#include "sdk/od/OdStaticRxObject.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <vector>

class CHxEditorReactor;

namespace gesturewidget {

// Tells its reactors about the main window. Reactors that are CHxEditorReactor hear of it
// also when they are added after it came up: from the event loop, so that whoever adds
// one has finished doing so.
class HostEditor : public OdStaticRxObject<OdEditor>
{
public:
    HostEditor();
    ~HostEditor() override;

    void addReactor(OdEditorReactor *reactor) override;
    void removeReactor(OdEditorReactor *reactor) override;

    // The main window's menus are complete. A second call before notifyMainFrameDestroyed()
    // does nothing.
    void notifyMainFrameCreated(QWidget *frame);
    // The main window goes away; `frame` may be half destroyed and is only handed on.
    // Reactors that never heard of it do not hear of this.
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
