// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

// The names of what is kept in the settings of a program, as far as the host needs them itself.
// The module names its own in bindings/SettingsKeys.h; a test compares the two.
namespace gesturewidget::settingsnames {

// The module's section.
[[nodiscard]] inline QString moduleSection()
{
    return QStringLiteral("GestureWidget");
}

// In the module's section: "0" while gestures are off, else "1".
[[nodiscard]] inline QString enabledKey()
{
    return QStringLiteral("EnableMouseGesture");
}

// In the module's section: "4" or "8", the number of gestures.
[[nodiscard]] inline QString schemeKey()
{
    return QStringLiteral("ActiveScheme");
}

// The module's fourteen keys, in the order in which it writes them for "Reset to Defaults".
[[nodiscard]] inline QStringList moduleKeys()
{
    QStringList keys{QStringLiteral("EnableMouseGesture"), QStringLiteral("ActiveScheme")};
    for (const int scheme : {4, 8}) {
        for (int number = 1; number <= scheme; ++number)
            keys.append(QString::number(10 * scheme + number));
    }
    return keys;
}

// The module's first command for a direction, such as "87"; empty for any other key.
[[nodiscard]] inline QString initialCommand(const QString &key)
{
    static const QMap<QString, QString> commands{
        {QStringLiteral("41"), QStringLiteral("ID_ZOOM_BOUNDS")},
        {QStringLiteral("42"), QStringLiteral("ID_OPEN")},
        {QStringLiteral("43"), QStringLiteral("ID_SAVE")},
        {QStringLiteral("44"), QStringLiteral("ID_LINE")},
        {QStringLiteral("81"), QStringLiteral("ID_ZOOM_BOUNDS")},
        {QStringLiteral("82"), QStringLiteral("ID_OFFSET")},
        {QStringLiteral("83"), QStringLiteral("ID_OPEN")},
        {QStringLiteral("84"), QStringLiteral("ID_COPY")},
        {QStringLiteral("85"), QStringLiteral("ID_SAVE")},
        {QStringLiteral("86"), QStringLiteral("ID_DTEXT")},
        {QStringLiteral("87"), QStringLiteral("ID_LINE")},
        {QStringLiteral("88"), QStringLiteral("ID_TRIM")}};
    return commands.value(key);
}

// The host's section.
[[nodiscard]] inline QString hostSection()
{
    return QStringLiteral("Host");
}

// In the host's section: the trigger that a person chose in place of the profile's, see
// TriggerText.h. Missing or empty means that nobody chose one.
[[nodiscard]] inline QString triggerKey()
{
    return QStringLiteral("Trigger");
}

// In the host's section: the trigger that the host has found to suit the program's drawings. It
// counts where neither the person nor the profile names one.
[[nodiscard]] inline QString usualTriggerKey()
{
    return QStringLiteral("UsualTrigger");
}

// In the host's section: "1" once the program has told the person what starts a gesture.
[[nodiscard]] inline QString introducedKey()
{
    return QStringLiteral("Introduced");
}

// In the host's section: "1" while gestures stay off because the program died in their code. Only a
// person switches them on again.
[[nodiscard]] inline QString offSinceCrashKey()
{
    return QStringLiteral("OffSinceCrash");
}

// In the host's section: the identifiers that a person has imported, one a line. They come from
// another computer, so the program may well have them although nobody has seen them on this one.
[[nodiscard]] inline QString importedKey()
{
    return QStringLiteral("Imported");
}

} // namespace gesturewidget::settingsnames
