// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "CHxSystemServices.h"

#include "CHxDocument.h"
#include "CHxDocumentManager.h"

namespace {
CHxSystemServices *currentServices = nullptr;
}

CHxCommandResult::~CHxCommandResult() = default;

CHxSystemServices::~CHxSystemServices() = default;

CHxSystemServices *GetHxSystemServices()
{
    return currentServices;
}

void SetHxSystemServices(CHxSystemServices *services)
{
    currentServices = services;
}

CHxDocument *ACTIVE_DOCUMENT()
{
    CHxDocumentManager *manager = currentServices ? currentServices->GetDocumentManager() : nullptr;
    return manager ? manager->GetActiveDocument() : nullptr;
}
