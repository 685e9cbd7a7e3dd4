// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "../SdkExport.h"

#include <cstddef>

// The platform's allocator, for objects that cross library boundaries. Returns memory that is
// aligned for any type, or null when no memory is left.
extern "C" GESTUREWIDGET_SDK_EXPORT void *odrxAlloc(std::size_t bytes);

// Frees memory from odrxAlloc(). Ignores null.
extern "C" GESTUREWIDGET_SDK_EXPORT void odrxFree(void *memory);
