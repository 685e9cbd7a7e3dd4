// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "bindings/MgDonutDataContainer.h"

namespace tests {

// A binding container that a test creates itself. Makes its members public.
class OpenContainer : public MgDonutDataContainer
{
public:
    using MgDonutDataContainer::_pinstance;
    using MgDonutDataContainer::categoryMap;
    using MgDonutDataContainer::commands;
    using MgDonutDataContainer::eightTable;
    using MgDonutDataContainer::fourTable;
    using MgDonutDataContainer::gestureEnabled;
    using MgDonutDataContainer::largeIcons;
    using MgDonutDataContainer::scheme;
};

} // namespace tests
