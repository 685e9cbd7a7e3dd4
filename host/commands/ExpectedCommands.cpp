// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/commands/ExpectedCommands.h"

#include "host/files/CommandNames.h"
#include "host/files/RingSettings.h"
#include "host/files/SettingsNames.h"

namespace gesturewidget {

QMap<QString, QString> expectedCommands(const QHash<QString, QStringList> &wellKnown,
                                        const SettingsFile::Values &settings)
{
    QMap<QString, QString> expected;
    for (auto it = wellKnown.begin(); it != wellKnown.end(); ++it)
        expected.insert(it.key(), captionFrom(it.key()));
    const QStringList bound = ringsettings::boundCommands(settings);
    for (const QString &identifier : bound)
        expected.insert(identifier, captionFrom(identifier));
    return expected;
}

QStringList trustedCommands(const SettingsFile::Values &settings, const SettingsFile::Values &site)
{
    const QStringList identifiers =
        settings.value(SettingsFile::nameOf(settingsnames::hostSection(), settingsnames::importedKey()))
            .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    return identifiers + QStringList(expectedCommands({}, site).keys());
}

} // namespace gesturewidget
