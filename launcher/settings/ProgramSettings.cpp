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

gesturewidget::ProgramProfile profileOf(const Subject &subject)
{
    return gesturewidget::ProgramProfile::forProgram(subject.name, subject.profileFolders, nullptr);
}

ProgramSettings settingsOf(const Subject &subject, const gesturewidget::ProgramProfile &profile,
                           const KnownCommands &commands, QString *notice)
{
    const gesturewidget::SiteSettings site(subject.settingsFile());
    const QString usualTrigger =
        Bindings::usualTrigger(profile, site.under(ownSettings(subject.settingsFile(), notice)));
    return {profile, usualTrigger, commands,
            SettingsTasks(subject.name, subject.settingsFile(), commands, usualTrigger)};
}

} // namespace

ProgramSettings ProgramSettings::of(const Subject &subject, QString *notice)
{
    const gesturewidget::ProgramProfile profile = profileOf(subject);
    return settingsOf(subject, profile, knownCommands(subject, profile), notice);
}

void ProgramSettings::update(const Subject &subject, QString *notice)
{
    *this = settingsOf(subject, profileOf(subject), commands, notice);
}

QStringList ProgramSettings::tasksOfProgram() const
{
    QStringList found = profile.taskBindings.keys();
    for (const QString &action : profile.taskActions) {
        const gesturewidget::RememberedCommand *one = commands.find(action);
        if (!one || one->isInToolBar)
            continue;
        // The group of such actions is one menu of the program.
        for (const gesturewidget::RememberedCommand &command : commands.shown()) {
            if (command.group == one->group && command.way == one->way && !command.isInToolBar)
                found.append(command.identifier);
        }
        break;
    }
    found.removeDuplicates();
    return found;
}

} // namespace launcher
