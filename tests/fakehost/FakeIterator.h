// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/chx/CHxIterator.h"
#include "tests/fakehost/FakeFault.h"

#include <vector>

namespace tests {

// Walks a copy of a list and counts, in `alive`, the iterators that still exist.
template <class T> class FakeIterator : public CHxIterator<T>
{
public:
    FakeIterator(std::vector<T *> items, int *alive)
        : m_items(std::move(items))
        , m_alive(alive)
    {
        ++*m_alive;
    }
    ~FakeIterator() override { --*m_alive; }

    [[nodiscard]] bool Done() const override { return passed(m_index >= m_items.size()); }
    void Next() override
    {
        FakeFault::pass();
        ++m_index;
    }
    [[nodiscard]] T *Current() const override { return passed(m_items.at(m_index)); }

private:
    std::vector<T *> m_items;
    std::size_t m_index = 0;
    int *m_alive;
};

} // namespace tests
