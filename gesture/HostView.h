// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "bindings/HostCall.h"
#include "sdk/chx/CHxDocument.h"

#include <QWidget>

// The view of a document; null if there is no document, or if its host cannot say.
inline QWidget *viewOf(CHxDocument *document)
{
    return hostValue<QWidget *>(nullptr,
                                [document] { return document ? document->GetViewWidget() : nullptr; });
}

// The view of the active document. Pointer positions are measured in it.
inline QWidget *activeView()
{
    return viewOf(hostValue<CHxDocument *>(nullptr, [] { return ACTIVE_DOCUMENT(); }));
}
