// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

// A profile: any file gives the defaults and one line, or a profile that can be written again.

#include "host/files/ProgramProfile.h"
#include "tests/fuzz/Fuzz.h"

#include <QJsonDocument>

using gesturewidget::ProgramProfile;

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    fuzz::keepQuiet();
    const QString program = QStringLiteral("drafting");
    const QString name = program + QStringLiteral(".json");
    static_cast<void>(fuzz::file(name, fuzz::bytes(data, size)));
    QString message;
    const ProgramProfile profile = ProgramProfile::forProgram(program, {fuzz::folder()}, &message);
    fuzz::check(!message.contains(QLatin1Char('\n')), "the message is one line");
    if (!message.isEmpty())
        return 0;

    const QJsonObject json = profile.toJson();
    static_cast<void>(fuzz::file(name, QJsonDocument(json).toJson()));
    const ProgramProfile again = ProgramProfile::forProgram(program, {fuzz::folder()}, &message);
    fuzz::check(message.isEmpty() && again.toJson() == json, "a profile that was read is written");
    return 0;
}
