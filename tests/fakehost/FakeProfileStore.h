// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/chx/CHxProfileStore.h"
#include "tests/fakehost/CallLog.h"

#include <QMap>

namespace tests {

// A profile store in memory. Notes "store.exists KEY", "store.get KEY SOURCE" and
// "store.set KEY=VALUE"; sections other than "GestureWidget" appear as "SECTION/KEY".
class FakeProfileStore : public CHxProfileStore
{
public:
    explicit FakeProfileStore(CallLog *log)
        : m_log(log)
    {
    }

    [[nodiscard]] bool Exists(const CHxString &section, const CHxString &key) override;
    [[nodiscard]] OdResBufPtr Get(const CHxString &section, const CHxString &key, int source) override;
    bool Set(const CHxString &section, const CHxString &key, const OdResBuf *value) override;

    // Key (without section "GestureWidget") to value.
    QMap<QString, QString> values;
    // Type code of the last buffer that was set.
    int lastType = 0;
    // Get() gives out empty pointers although Exists() is true.
    bool getFails = false;
    // Set() keeps nothing and returns false.
    bool setFails = false;

private:
    [[nodiscard]] static QString nameOf(const CHxString &section, const CHxString &key);

    CallLog *m_log;
};

} // namespace tests
