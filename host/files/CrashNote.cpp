// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/CrashNote.h"

#include "host/files/CrashPage.h"
#include "host/files/FileContent.h"
#include "host/files/IniText.h"
#include "host/files/SettingsFile.h"
#include "host/files/SettingsNames.h"

namespace gesturewidget {
namespace {

QString noteName()
{
    return SettingsFile::nameOf(settingsnames::hostSection(), settingsnames::offSinceCrashKey());
}

} // namespace

CrashNote::CrashNote(const QString &program, const QString &settings)
    : m_program(program)
    , m_settings(settings)
{
}

bool CrashNote::isInSettings() const
{
    // Not by SettingsFile, which complains about damage: those who use the settings do that.
    const FileContent content = FileContent::read(m_settings, SettingsFile::kMaximalSize);
    return IniText(content.bytes).values().value(noteName()) == QLatin1String("1");
}

bool CrashNote::isThere() const
{
    return isInSettings() || CrashPage::tellsOfCrash(m_program, m_settings);
}

void CrashNote::keep() const
{
    const bool isKept = !CrashPage::tellsOfCrash(m_program, m_settings)
                     || SettingsFile(m_settings).write({{noteName(), QStringLiteral("1")}});
    if (isKept)
        CrashPage::removeDead(m_program, m_settings);
}

bool CrashNote::remove(QString *problem) const
{
    SettingsFile file(m_settings);
    if (isInSettings() && !file.write({{noteName(), QString()}})) {
        *problem = file.problem();
        return false;
    }
    CrashPage::removeDead(m_program, m_settings);
    return true;
}

} // namespace gesturewidget
