// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/settings/ProgramSettings.h"

#include "host/files/CatalogueFile.h"
#include "host/files/FileContent.h"
#include "host/files/IniText.h"
#include "host/files/SettingsFile.h"
#include "host/files/SiteSettings.h"
#include "launcher/settings/Bindings.h"

#include <algorithm>
#include <iterator>

namespace launcher {
namespace {

KnownCommands knownCommands(const Subject &subject, const gesturewidget::ProgramProfile &profile)
{
    QStringList wellKnown = Bindings::initial().eight;
    std::copy(profile.wellKnownCommands.keyBegin(), profile.wellKnownCommands.keyEnd(),
              std::back_inserter(wellKnown));
    return KnownCommands(gesturewidget::CatalogueFile(subject.catalogueFile()).read(), wellKnown);
}

gesturewidget::SettingsFile::Values ownSettings(const QString &path, QString *notice)
{
    if (!notice) {
        const auto own = gesturewidget::FileContent::read(path, SettingsTasks::kMaximalImport);
        return gesturewidget::IniText(own.bytes).values();
    }
    gesturewidget::SettingsFile file(path);
    const gesturewidget::SettingsFile::Values values = file.read();
    *notice = file.notice();
    return values;
}

} // namespace

ProgramSettings ProgramSettings::of(const Subject &subject, QString *notice)
{
    const gesturewidget::ProgramProfile profile =
        gesturewidget::ProgramProfile::forProgram(subject.name, subject.profileFolders, nullptr);
    const gesturewidget::SiteSettings site(subject.settingsFile());
    const QString usualTrigger =
        Bindings::usualTrigger(profile, site.under(ownSettings(subject.settingsFile(), notice)));
    const KnownCommands commands = knownCommands(subject, profile);
    return {profile, usualTrigger, commands,
            SettingsTasks(subject.name, subject.settingsFile(), commands, usualTrigger)};
}

} // namespace launcher
