// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "bindings/MgCommandDS.h"

MgCommandDS::MgCommandDS(const QString &identifier, const QString &commandString, const QString &caption,
                         const QString &menuCategory, const QString &tip, const QIcon &commandIcon,
                         unsigned char four, unsigned char eight)
    : id(identifier)
    , command(commandString)
    , displayName(caption)
    , category(menuCategory)
    , tooltip(tip)
    , icon(commandIcon)
    , fourDirection(four)
    , eightDirection(eight)
{
}

bool MgCommandDS::operator<(const MgCommandDS &other) const
{
    return category < other.category;
}

bool MgCommandDS::operator==(const QString &otherId) const
{
    return id == otherId;
}
