// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/settings/ProgramSettings.h"

#include "host/files/CatalogueFile.h"
#include "host/files/FileContent.h"
#include "host/files/IniText.h"
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

} // namespace

ProgramSettings ProgramSettings::of(const Subject &subject)
{
    const gesturewidget::ProgramProfile profile =
        gesturewidget::ProgramProfile::forProgram(subject.name, subject.profileFolders, nullptr);
    const gesturewidget::SiteSettings site(subject.settingsFile());
    // Read without a word: the tasks complain about a file that cannot be used, and once is enough.
    const gesturewidget::FileContent own =
        gesturewidget::FileContent::read(subject.settingsFile(), SettingsTasks::kMaximalImport);
    const QString usualTrigger =
        Bindings::usualTrigger(profile, site.under(gesturewidget::IniText(own.bytes).values()));
    const KnownCommands commands = knownCommands(subject, profile);
    return {profile, usualTrigger, commands,
            SettingsTasks(subject.name, subject.settingsFile(), commands, usualTrigger)};
}

} // namespace launcher
