// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "../SdkExport.h"

class OdEdCommand;
class OdString;

// Notifications about the files of drawings. Every default is empty: override what you need.
// `path` is the file's full path, empty when the host does not know it.
class GESTUREWIDGET_SDK_EXPORT OdRxEventReactor
{
public:
    OdRxEventReactor(const OdRxEventReactor &) = delete;
    OdRxEventReactor &operator=(const OdRxEventReactor &) = delete;
    virtual ~OdRxEventReactor();

    // A drawing has been saved to `path`.
    virtual void saveComplete(const OdString &path);
    // A drawing has been opened from `path`.
    virtual void openComplete(const OdString &path);

protected:
    OdRxEventReactor() = default;
};

// Notifications of the editor. Every default is empty.
class GESTUREWIDGET_SDK_EXPORT OdEditorReactor : public OdRxEventReactor
{
public:
    ~OdEditorReactor() override;

    // The visible part of the active drawing changed: the user zoomed, panned or switched views.
    virtual void viewChanged();

protected:
    OdEditorReactor() = default;
};

// Notifications about the command stack. Every default is empty. `command` is never null and is
// valid during the call; take a reference to keep it longer.
class GESTUREWIDGET_SDK_EXPORT OdEdCommandStackReactor
{
public:
    OdEdCommandStackReactor(const OdEdCommandStackReactor &) = delete;
    OdEdCommandStackReactor &operator=(const OdEdCommandStackReactor &) = delete;
    virtual ~OdEdCommandStackReactor();

    // `command` has been added to the stack.
    virtual void commandAdded(OdEdCommand *command);
    // `command` is about to be removed; the stack still finds it by name.
    virtual void commandWillBeRemoved(OdEdCommand *command);
    // `command` is about to run: its execute() comes next.
    virtual void commandWillStart(OdEdCommand *command);
    // `command` has returned from execute().
    virtual void commandEnded(OdEdCommand *command);

protected:
    OdEdCommandStackReactor() = default;
};

// Notifications of the Lisp engine. Every default is empty. A host without a Lisp engine sends
// none.
class GESTUREWIDGET_SDK_EXPORT OdEdLispEngineReactor
{
public:
    OdEdLispEngineReactor(const OdEdLispEngineReactor &) = delete;
    OdEdLispEngineReactor &operator=(const OdEdLispEngineReactor &) = delete;
    virtual ~OdEdLispEngineReactor();

    // A Lisp expression is about to run; `firstLine` is the first line of its text.
    virtual void lispWillStart(const OdString &firstLine);
    // The Lisp expression has ended, with or without an error.
    virtual void lispEnded();

protected:
    OdEdLispEngineReactor() = default;
};
