#pragma once

#include <QtGlobal>

// Walks a list of the host's objects, none of which it owns.
//
//     for (const auto it = manager->NewMenuIterator(); !it->Done(); it->Next())
//         use(it->Current());
template <class T> class CHxIterator
{
public:
    Q_DISABLE_COPY_MOVE(CHxIterator)
    virtual ~CHxIterator() = default;

    [[nodiscard]] virtual bool Done() const = 0;
    virtual void Next() = 0;
    // The object at this place; may be null.
    [[nodiscard]] virtual T *Current() const = 0;

protected:
    CHxIterator() = default;
};
