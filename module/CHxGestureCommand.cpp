// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "module/CHxGestureCommand.h"

#include "bindings/HostCall.h"
#include "dialog/MgDonutDialogManager.h"
#include "sdk/chx/CHxMainFrame.h"
#include "sdk/chx/CHxSystemServices.h"
#include "sdk/QtBridge.h"

#include <QPointer>
#include <QScopeGuard>

namespace {

[[nodiscard]] QWidget *dialogParent()
{
    CHxSystemServices *services = GetHxSystemServices();
    const CHxMainFrame *frame = services ? services->GetMainFrame() : nullptr;
    QWidget *window = frame ? frame->GetMainWindow() : nullptr;
    return window ? window : qtbridge::desktopWidget();
}

void runDialog()
{
    // The dialog is on the heap and watched, because the main window may be destroyed while it is open,
    // and the dialog with it.
    const QPointer<MgDonutDialogManager> dialog(
        new MgDonutDialogManager(dialogParent(), Qt::WindowFlags()));
    const auto closing = qScopeGuard([&dialog] { delete dialog.data(); });
    dialog->exec();
}

} // namespace

CHxGestureCommand::~CHxGestureCommand() = default;

OdString CHxGestureCommand::globalName() const
{
    return OdString("_GESTURE", kOdAnsiCodePage);
}

OdString CHxGestureCommand::localName() const
{
    return OdString("GESTURE", kOdAnsiCodePage);
}

int CHxGestureCommand::Execute(CHxCommandContext *)
{
    hostCall(runDialog);
    return kNormal;
}
