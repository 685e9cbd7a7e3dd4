#pragma once

#include "sdk/chx/CHxString.h"
#include "sdk/od/OdResBuf.h"

// The host's profile store: one value under each section and key, kept from start to
// start. Owned by the host.
class SDK_EXPORT CHxProfileStore
{
public:
    Q_DISABLE_COPY_MOVE(CHxProfileStore)
    virtual ~CHxProfileStore();

    // What Get() shall look at: kProfile is the user's current profile.
    static constexpr int kProfile = 4;

    [[nodiscard]] virtual bool Exists(const CHxString &section, const CHxString &key) = 0;
    // The value as a string buffer; an empty pointer when there is none.
    [[nodiscard]] virtual OdResBufPtr Get(const CHxString &section, const CHxString &key,
                                          int source) = 0;
    // Stores a string buffer. Returns whether it was kept.
    virtual bool Set(const CHxString &section, const CHxString &key, const OdResBuf *value) = 0;

protected:
    CHxProfileStore() = default;
};
