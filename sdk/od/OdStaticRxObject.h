#pragma once

// Gives `Base` a life by value, as a member or on the stack: counting does nothing, so
// nobody who is handed a reference can free it.
template <class Base> class OdStaticRxObject : public Base
{
public:
    using Base::Base;

    void addRef() override { }
    void release() override { }
    [[nodiscard]] long numRefs() const override { return 1; }
};
