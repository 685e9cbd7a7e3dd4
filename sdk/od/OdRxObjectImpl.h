// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <atomic>

// Makes `Base` an object for the heap. It starts with one reference, which the creator passes to
// an OdSmartPtr with kOdRxAttach. It deletes itself when the last reference goes.
//
//     return OdSmartPtr<OdResBuf>(new OdRxObjectImpl<OdResBuf>, kOdRxAttach);
template <class Base> class OdRxObjectImpl : public Base
{
public:
    using Base::Base;

    void addRef() override { m_references.fetch_add(1, std::memory_order_relaxed); }
    void release() override
    {
        if (m_references.fetch_sub(1, std::memory_order_acq_rel) == 1)
            delete this;
    }
    [[nodiscard]] long numRefs() const override { return m_references.load(); }

private:
    std::atomic<long> m_references{1};
};
