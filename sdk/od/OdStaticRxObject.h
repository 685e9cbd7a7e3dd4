// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

// Makes `Base` an object that is held by value, as a member or on the stack. It does not count
// references, so release() never deletes it.
template <class Base> class OdStaticRxObject : public Base
{
public:
    using Base::Base;

    void addRef() override { }
    void release() override { }
    [[nodiscard]] long numRefs() const override { return 1; }
};
