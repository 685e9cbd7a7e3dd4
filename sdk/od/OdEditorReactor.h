#pragma once

#include "sdk/SdkExport.h"

class OdEdCommand;
class OdString;

// Notifications about drawings as files. Every body here is empty: override what you need.
class SDK_EXPORT OdRxEventReactor
{
public:
    OdRxEventReactor(const OdRxEventReactor &) = delete;
    OdRxEventReactor &operator=(const OdRxEventReactor &) = delete;
    virtual ~OdRxEventReactor();

    virtual void saveComplete(const OdString &path);
    virtual void openComplete(const OdString &path);

protected:
    OdRxEventReactor() = default;
};

// Notifications of the editor.
class SDK_EXPORT OdEditorReactor : public OdRxEventReactor
{
public:
    ~OdEditorReactor() override;

    virtual void viewChanged();

protected:
    OdEditorReactor() = default;
};

// Notifications about the command stack.
class SDK_EXPORT OdEdCommandStackReactor
{
public:
    OdEdCommandStackReactor(const OdEdCommandStackReactor &) = delete;
    OdEdCommandStackReactor &operator=(const OdEdCommandStackReactor &) = delete;
    virtual ~OdEdCommandStackReactor();

    virtual void commandAdded(OdEdCommand *command);
    virtual void commandWillBeRemoved(OdEdCommand *command);
    virtual void commandWillStart(OdEdCommand *command);
    virtual void commandEnded(OdEdCommand *command);

protected:
    OdEdCommandStackReactor() = default;
};

// Notifications of the Lisp engine, for hosts that have one.
class SDK_EXPORT OdEdLispEngineReactor
{
public:
    OdEdLispEngineReactor(const OdEdLispEngineReactor &) = delete;
    OdEdLispEngineReactor &operator=(const OdEdLispEngineReactor &) = delete;
    virtual ~OdEdLispEngineReactor();

    virtual void lispWillStart(const OdString &firstLine);
    virtual void lispEnded();

protected:
    OdEdLispEngineReactor() = default;
};
