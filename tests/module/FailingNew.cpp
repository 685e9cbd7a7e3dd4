// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "tests/module/FailingNew.h"

#include <cstdlib>
#include <new>

int tests::newsUntilFailure = -1;

void *operator new(std::size_t bytes)
{
    if (tests::newsUntilFailure >= 0 && tests::newsUntilFailure-- == 0)
        throw std::bad_alloc();
    if (void *memory = std::malloc(bytes))
        return memory;
    throw std::bad_alloc();
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}

void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory);
}
