// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/session/LastRun.h"

#include "host/files/CrashNote.h"
#include "host/files/CrashPage.h"
#include "host/files/InstallPaths.h"
#include "host/files/SettingsNames.h"
#include "host/files/Text.h"
#include "sdk/OwnCode.h"

#include <cstdlib>
#include <utility>

namespace gesturewidget {
namespace {

CrashPage *page = nullptr; // a plain pointer: exit() must not destroy what is still in use

} // namespace

QString LastRun::obstacle(const QString &program, const QString &settings)
{
    const CrashNote note(program, settings);
    const bool isOff = note.isThere();
    note.keep();
    if (!isOff)
        return {};
    const QString remedy =
        settings == settingsFile(program)
            ? QStringLiteral("mouse-gestures --switch-on %1").arg(program)
            : Text::tr("remove %1 from %2").arg(settingsnames::offSinceCrashKey(), settings);
    return Text::tr("gestures are off, since %1 crashed in their code; to switch them on: %2")
        .arg(program, remedy);
}

void LastRun::watchThisOne(const QString &program, const QString &settings)
{
    if (page)
        return;
    static const int registered = std::atexit(&LastRun::end);
    static_cast<void>(registered);
    page = new CrashPage(program, settings);
    codemark::keepAt(page->mark());
}

void LastRun::end()
{
    codemark::keepAt(nullptr);
    delete std::exchange(page, nullptr);
}

} // namespace gesturewidget
