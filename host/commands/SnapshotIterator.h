// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/chx/CHxIterator.h"

#include <cstddef>
#include <utility>
#include <vector>

namespace gesturewidget {

// Walks the objects that a list held at the beginning. The list may change meanwhile.
template <class T> class SnapshotIterator : public CHxIterator<T>
{
public:
    explicit SnapshotIterator(std::vector<T *> objects)
        : m_objects(std::move(objects))
    {
    }

    [[nodiscard]] bool Done() const override { return m_place >= m_objects.size(); }
    void Next() override { ++m_place; }
    [[nodiscard]] T *Current() const override { return Done() ? nullptr : m_objects[m_place]; }

private:
    std::vector<T *> m_objects;
    std::size_t m_place = 0;
};

} // namespace gesturewidget
