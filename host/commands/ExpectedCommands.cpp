// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/commands/ExpectedCommands.h"

#include "host/commands/WellKnownGuess.h"
#include "host/files/RingSettings.h"
#include "host/files/SettingsNames.h"

namespace gesturewidget {
namespace {

// Returns a caption by which a person may recognise the command before its action was seen.
QString captionFor(const QString &identifier)
{
    const QString wellKnown = WellKnownGuess::captionOf(identifier);
    // A path of captions ends with the command's own.
    return wellKnown.isEmpty() ? identifier.section(QLatin1Char('/'), -1) : wellKnown;
}

} // namespace

QMap<QString, QString> expectedCommands(const QHash<QString, QStringList> &wellKnown,
                                        const SettingsFile::Values &settings)
{
    QMap<QString, QString> expected;
    for (auto it = wellKnown.begin(); it != wellKnown.end(); ++it)
        expected.insert(it.key(), captionFor(it.key()));
    const QStringList bound = ringsettings::boundCommands(settings);
    for (const QString &identifier : bound)
        expected.insert(identifier, captionFor(identifier));
    return expected;
}

QStringList trustedCommands(const SettingsFile::Values &settings, const SettingsFile::Values &site)
{
    QStringList identifiers =
        settings.value(SettingsFile::nameOf(settingsnames::hostSection(), settingsnames::importedKey()))
            .split(QLatin1Char('\n'));
    identifiers.removeAll(QString());
    return identifiers + QStringList(expectedCommands({}, site).keys());
}

} // namespace gesturewidget
