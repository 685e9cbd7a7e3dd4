// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/chx/CHxProfileStore.h"

#include <QString>

#include <functional>

namespace gesturewidget {

class ProfileStore;

// The profile store as modules see it. While a task with a ring of its own is on, the keys of the ring
// are those of that ring. All else is as in the store.
class TaskRings : public CHxProfileStore
{
public:
    // `task` returns the current task; empty for none. The store must outlive this.
    TaskRings(ProfileStore &store, std::function<QString()> task);
    ~TaskRings() override;

    // Returns the task whose own ring is in use; empty for the shared ring.
    [[nodiscard]] QString ring();
    // See ProfileStore::beginReading(). All values are those of one ring, too.
    void beginReading();

    [[nodiscard]] bool Exists(const CHxString &section, const CHxString &key) override;
    [[nodiscard]] OdResBufPtr Get(const CHxString &section, const CHxString &key, int source) override;
    bool Set(const CHxString &section, const CHxString &key, const OdResBuf *value) override;

private:
    [[nodiscard]] CHxString actual(const CHxString &section, const CHxString &key);

    ProfileStore &m_store;
    std::function<QString()> m_task;
    QString m_ringOfReading; // for while the store is being read
};

} // namespace gesturewidget
