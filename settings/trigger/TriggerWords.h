// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

namespace settings {

// A trigger in a person's language: "Right button", "Ctrl + Right button". `trigger` is written as
// in host/files/TriggerText.h.
[[nodiscard]] QString triggerInWords(const QString &trigger);
// The triggers that people choose most.
[[nodiscard]] QStringList commonTriggers();

} // namespace settings
