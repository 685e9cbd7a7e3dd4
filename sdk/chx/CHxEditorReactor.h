#pragma once

#include "sdk/chx/CHxFileData.h"
#include "sdk/od/OdEditorReactor.h"

class CHxDatabase;
class CHxSelectionSet;
class CHxString;
class QWidget;

// The platform's editor notifications and the host's own. Every body here is empty:
// override what you need. The host calls mainFrameCreated once its menus are complete,
// also for a reactor that is added after that.
class SDK_EXPORT CHxEditorReactor : public OdEditorReactor,
                                    public OdEdCommandStackReactor,
                                    public OdEdLispEngineReactor
{
public:
    ~CHxEditorReactor() override;

    virtual void mainFrameCreated(QWidget *frame);
    virtual void mainFrameDestroyed(QWidget *frame);
    virtual void selectionSetCreated(CHxSelectionSet *set);
    virtual void selectionSetDestroyed(CHxSelectionSet *set);
    virtual void beginSaveEx(CHxDatabase *database, const CHxString &path, CHxFileData::FileType type,
                             int version);

protected:
    CHxEditorReactor() = default;
};
