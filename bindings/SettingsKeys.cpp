// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "bindings/SettingsKeys.h"

#include <iterator>

namespace settingskeys {
namespace {

struct Direction
{
    QString key;
    QString command; // identifier of the command bound at first
};

// By direction index.
const Direction *fourDirections()
{
    static const Direction directions[] = {
        {QStringLiteral("41"), QStringLiteral("ID_ZOOM_BOUNDS")},
        {QStringLiteral("42"), QStringLiteral("ID_OPEN")},
        {QStringLiteral("43"), QStringLiteral("ID_SAVE")},
        {QStringLiteral("44"), QStringLiteral("ID_LINE")},
    };
    static_assert(std::size(directions) == kFourCount);
    return directions;
}

// By direction index.
const Direction *eightDirections()
{
    static const Direction directions[] = {
        {QStringLiteral("81"), QStringLiteral("ID_ZOOM_BOUNDS")},
        {QStringLiteral("82"), QStringLiteral("ID_OFFSET")},
        {QStringLiteral("83"), QStringLiteral("ID_OPEN")},
        {QStringLiteral("84"), QStringLiteral("ID_COPY")},
        {QStringLiteral("85"), QStringLiteral("ID_SAVE")},
        {QStringLiteral("86"), QStringLiteral("ID_DTEXT")},
        {QStringLiteral("87"), QStringLiteral("ID_LINE")},
        {QStringLiteral("88"), QStringLiteral("ID_TRIM")},
    };
    static_assert(std::size(directions) == kEightCount);
    return directions;
}

} // namespace

const QString &enableMouseGesture()
{
    static const QString key = QStringLiteral("EnableMouseGesture");
    return key;
}

const QString &activeScheme()
{
    static const QString key = QStringLiteral("ActiveScheme");
    return key;
}

QString directionKey(DonutScheme scheme, int number)
{
    if (scheme == DonutScheme::Four && number >= 1 && number <= kFourCount)
        return fourDirections()[number - 1].key;
    if (scheme == DonutScheme::Eight && number >= 1 && number <= kEightCount)
        return eightDirections()[number - 1].key;
    return {};
}

QString initialValue(const QString &key)
{
    if (key == enableMouseGesture())
        return QStringLiteral("1");
    if (key == activeScheme())
        return QStringLiteral("4"); // deliberately not the store's, see the header
    for (int i = 0; i < kFourCount; ++i) {
        if (key == fourDirections()[i].key)
            return fourDirections()[i].command;
    }
    for (int i = 0; i < kEightCount; ++i) {
        if (key == eightDirections()[i].key)
            return eightDirections()[i].command;
    }
    return {};
}

} // namespace settingskeys
