// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <utility>

// Selects the OdSmartPtr constructor that takes over a reference.
enum OdRxAttachTag { kOdRxAttach };

// Shared ownership of a reference-counted object. Empty when there is no object.
template <class T> class OdSmartPtr
{
public:
    OdSmartPtr() = default;
    // Shares `object` and adds a reference. Null makes an empty pointer.
    OdSmartPtr(T *object)
        : m_object(object)
    {
        if (m_object)
            m_object->addRef();
    }
    // Takes over the reference that `object` was created with and adds none.
    OdSmartPtr(T *object, OdRxAttachTag)
        : m_object(object)
    {
    }
    OdSmartPtr(const OdSmartPtr &other)
        : OdSmartPtr(other.m_object)
    {
    }
    OdSmartPtr(OdSmartPtr &&other) noexcept
        : m_object(std::exchange(other.m_object, nullptr))
    {
    }
    OdSmartPtr &operator=(OdSmartPtr other) noexcept
    {
        std::swap(m_object, other.m_object);
        return *this;
    }
    ~OdSmartPtr()
    {
        if (m_object)
            m_object->release();
    }

    [[nodiscard]] T *get() const { return m_object; }
    [[nodiscard]] T *operator->() const { return m_object; }
    [[nodiscard]] T &operator*() const { return *m_object; }
    explicit operator bool() const { return m_object != nullptr; }

private:
    T *m_object = nullptr;
};
