#pragma once

#include "sdk/SdkExport.h"

#include <cstddef>

// The platform's allocator, used for objects that cross library boundaries.
// Returns memory aligned for any type, or null when there is none.
extern "C" SDK_EXPORT void *odrxAlloc(std::size_t bytes);

// Frees what odrxAlloc returned; null is ignored.
extern "C" SDK_EXPORT void odrxFree(void *memory);
