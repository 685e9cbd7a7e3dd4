// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "../od/OdResBuf.h"
#include "CHxString.h"

// The host's settings: one value for each section and key. They persist between starts of the
// program. The host owns the store.
class GESTUREWIDGET_SDK_EXPORT CHxProfileStore
{
public:
    Q_DISABLE_COPY_MOVE(CHxProfileStore)
    virtual ~CHxProfileStore();

    // A `source` for Get(): the user's current profile.
    static constexpr int kProfile = 4;

    // True when there is a value for the key.
    [[nodiscard]] virtual bool Exists(const CHxString &section, const CHxString &key) = 0;
    // Returns the value as a string buffer. Returns an empty pointer when there is none.
    [[nodiscard]] virtual OdResBufPtr Get(const CHxString &section, const CHxString &key,
                                          int source) = 0;
    // Stores a string buffer. Returns false when it could not be stored, and for null.
    virtual bool Set(const CHxString &section, const CHxString &key, const OdResBuf *value) = 0;

protected:
    CHxProfileStore() = default;
};
