// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "OdAlloc.h"

#include <cstdlib>

void *odrxAlloc(std::size_t bytes)
{
    return std::malloc(bytes);
}

void odrxFree(void *memory)
{
    std::free(memory);
}
