// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

// Iterates over objects of the host. Does not own them.
//
//     for (const auto it = manager->NewMenuIterator(); !it->Done(); it->Next())
//         use(it->Current());
template <class T> class CHxIterator
{
public:
    Q_DISABLE_COPY_MOVE(CHxIterator)
    virtual ~CHxIterator() = default;

    // True when there are no more objects.
    [[nodiscard]] virtual bool Done() const = 0;
    virtual void Next() = 0;
    // The current object; may be null.
    [[nodiscard]] virtual T *Current() const = 0;

protected:
    CHxIterator() = default;
};
