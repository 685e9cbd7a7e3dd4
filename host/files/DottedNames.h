// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "host/files/RememberedCommand.h"

#include <QHash>
#include <QSet>
#include <QString>

namespace gesturewidget {

// Tells object names with dots, such as "edit.copy", from names of documents, such as "house.dxf". Both
// look alike, so the other commands decide: a programmer's names share what is before the last dot.
class DottedNames
{
public:
    // As many different names must share it. One drawing seldom has as many files, and if they were
    // open at once, their captions would tell.
    static constexpr int kFewest = 3;

    // Learns the names of a command.
    void add(const RememberedCommand &command);
    // Returns whether a programmer has given the name. If in doubt, false. A name with "/" is a path of
    // captions and is never one.
    [[nodiscard]] bool contains(const QString &name) const;

private:
    QHash<QString, QSet<QString>> m_endings; // by what is before the last dot
};

} // namespace gesturewidget
