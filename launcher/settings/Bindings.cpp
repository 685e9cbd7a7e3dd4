#include "launcher/settings/Bindings.h"

#include "bindings/SettingsKeys.h"
#include "host/files/TriggerText.h"

namespace launcher {
namespace {

using gesturewidget::SettingsFile;

QString nameOf(const QString &key)
{
    return SettingsFile::nameOf(QStringLiteral("GestureWidget"), key);
}

QString triggerName()
{
    return SettingsFile::nameOf(gesturewidget::triggerSection(), gesturewidget::triggerKey());
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

Bindings Bindings::fromSettings(const SettingsFile::Values &values)
{
    Bindings bindings;
    // What is neither of the two values counts as the first one.
    bindings.enabled = values.value(nameOf(settingskeys::enableMouseGesture())) != QLatin1String("0");
    bindings.scheme = values.value(nameOf(settingskeys::activeScheme())) == QLatin1String("4") ? 4 : 8;
    bindings.four = commandsOf(4, values);
    bindings.eight = commandsOf(8, values);
    bindings.trigger = values.value(triggerName());
    return bindings;
}

Bindings Bindings::initial()
{
    return fromSettings({});
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
    return values;
}

} // namespace launcher
