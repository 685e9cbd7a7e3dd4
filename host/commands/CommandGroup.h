// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/chx/CHxUICommandManager.h"

#include <QString>

#include <vector>

namespace gesturewidget {

// A named list of commands. It owns none of them.
class CommandGroup : public CHxUICommandGroup
{
public:
    explicit CommandGroup(const QString &name);
    ~CommandGroup() override;

    [[nodiscard]] CHxString GetName() const override { return m_name; }
    [[nodiscard]] std::unique_ptr<CHxIterator<CHxUICommandItem>> NewCommandIterator() override;

    std::vector<CHxUICommandItem *> items;

private:
    QString m_name;
};

} // namespace gesturewidget
