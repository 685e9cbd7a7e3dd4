// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "CHxTracker.h"

CHxTracker::~CHxTracker() = default;

bool CHxTracker::CheckRegenAbort(const CHxInputPointManager *) const
{
    return false;
}

CHxString CHxTracker::GetName() const
{
    return {};
}

void CHxTracker::OnMainSelectionSetChanged(const CHxHitTestInfo *) { }
