// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/settings/Bindings.h"

#include "bindings/SettingsKeys.h"
#include "host/files/SettingsNames.h"
#include "host/files/TriggerText.h"
#include "launcher/Text.h"

#include <QHash>

#include <algorithm>

namespace launcher {
namespace {

using gesturewidget::SettingsFile;
namespace settingsnames = gesturewidget::settingsnames;

QString nameOf(const QString &key)
{
    return SettingsFile::nameOf(settingsnames::moduleSection(), key);
}

QStringList directionKeys(int scheme)
{
    QStringList keys;
    for (int number = 1; number <= scheme; ++number)
        keys.append(
            settingskeys::directionKey(scheme == 4 ? DonutScheme::Four : DonutScheme::Eight, number));
    return keys;
}

QStringList commandsOf(int scheme, const SettingsFile::Values &values)
{
    QStringList commands;
    bool isUntouched = true;
    const QStringList keys = directionKeys(scheme);
    for (const QString &key : keys) {
        isUntouched &= !values.contains(nameOf(key));
        commands.append(values.value(nameOf(key)));
    }
    for (int i = 0; isUntouched && i < keys.size(); ++i)
        commands[i] = settingskeys::initialValue(keys.at(i));
    return commands;
}

} // namespace

QStringList Bindings::directionNames(int scheme)
{
    if (scheme == 4)
        return {QStringLiteral("up"), QStringLiteral("left"), QStringLiteral("down"),
                QStringLiteral("right")};
    return {QStringLiteral("up"),        QStringLiteral("up-left"), QStringLiteral("left"),
            QStringLiteral("down-left"), QStringLiteral("down"),    QStringLiteral("down-right"),
            QStringLiteral("right"),     QStringLiteral("up-right")};
}

QString Bindings::directionInWords(const QString &name)
{
    static const QHash<QString, const char *> words{
        {QStringLiteral("up"), QT_TRANSLATE_NOOP("launcher", "up")},
        {QStringLiteral("up-left"), QT_TRANSLATE_NOOP("launcher", "up left")},
        {QStringLiteral("left"), QT_TRANSLATE_NOOP("launcher", "left")},
        {QStringLiteral("down-left"), QT_TRANSLATE_NOOP("launcher", "down left")},
        {QStringLiteral("down"), QT_TRANSLATE_NOOP("launcher", "down")},
        {QStringLiteral("down-right"), QT_TRANSLATE_NOOP("launcher", "down right")},
        {QStringLiteral("right"), QT_TRANSLATE_NOOP("launcher", "right")},
        {QStringLiteral("up-right"), QT_TRANSLATE_NOOP("launcher", "up right")}};
    const char *known = words.value(name);
    return known ? Text::tr(known) : name;
}

Bindings Bindings::fromSettings(const SettingsFile::Values &values)
{
    Bindings bindings;
    // Any other value counts as "1" here and as "8" below.
    bindings.enabled = values.value(nameOf(settingskeys::enableMouseGesture())) != QLatin1String("0");
    bindings.scheme = values.value(nameOf(settingskeys::activeScheme())) == QLatin1String("4") ? 4 : 8;
    bindings.four = commandsOf(4, values);
    bindings.eight = commandsOf(8, values);
    bindings.trigger = values.value(triggerName());
    return bindings;
}

QString Bindings::usualTrigger(const gesturewidget::ProgramProfile &profile,
                               const SettingsFile::Values &settings)
{
    const QString found = settings.value(
        SettingsFile::nameOf(settingsnames::hostSection(), settingsnames::usualTriggerKey()));
    Qt::MouseButton button = Qt::NoButton;
    Qt::KeyboardModifiers keys = Qt::NoModifier;
    if (profile.hasTrigger || !gesturewidget::parseTrigger(found, button, keys))
        return gesturewidget::triggerText(profile.triggerButton, profile.triggerModifiers);
    return gesturewidget::triggerText(button, keys);
}

QString Bindings::triggerName()
{
    return SettingsFile::nameOf(settingsnames::hostSection(), settingsnames::triggerKey());
}

Bindings Bindings::initial()
{
    return fromSettings({});
}

void Bindings::bind(int direction, const QString &command)
{
    for (QString &other : commands()) {
        if (other == command)
            other.clear();
    }
    commands()[direction] = command;
}

void Bindings::swap(int direction, int other)
{
    QStringList &all = commands();
    const QString command = all.at(direction);
    all[direction] = all.at(other);
    all[other] = command;
}

SettingsFile::Values Bindings::toSettings() const
{
    SettingsFile::Values values;
    values.insert(nameOf(settingskeys::enableMouseGesture()),
                  enabled ? QStringLiteral("1") : QStringLiteral("0"));
    values.insert(nameOf(settingskeys::activeScheme()), QString::number(scheme));
    for (const int size : {4, 8}) {
        const QStringList keys = directionKeys(size);
        for (int i = 0; i < size; ++i)
            values.insert(nameOf(keys.at(i)), (size == 4 ? four : eight).at(i));
    }
    values.insert(triggerName(), trigger);
    for (QString &value : values) {
        if (value.isNull()) // would mean that the key is to be removed
            value = QLatin1String("");
    }
    return values;
}

SettingsFile::Values Bindings::changesFrom(const SettingsFile::Values &now) const
{
    const SettingsFile::Values before = fromSettings(now).toSettings();
    const SettingsFile::Values after = toSettings();
    SettingsFile::Values changes;
    for (auto it = after.cbegin(); it != after.cend(); ++it) {
        if (before.value(it.key()) != it.value())
            changes.insert(it.key(), it.value());
    }
    // Once one direction of a scheme is stored, those that are missing count as empty.
    for (const int size : {4, 8}) {
        const QStringList keys = directionKeys(size);
        const bool hasChanged = std::any_of(keys.begin(), keys.end(), [&changes](const QString &key) {
            return changes.contains(nameOf(key));
        });
        for (const QString &key : keys) {
            if (hasChanged && !now.contains(nameOf(key)))
                changes.insert(nameOf(key), after.value(nameOf(key)));
        }
    }
    return changes;
}

} // namespace launcher
