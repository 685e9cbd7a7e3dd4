// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "launcher/settings/Bindings.h"

#include <QByteArray>
#include <QString>

namespace launcher {

// Bindings as a JSON text that people may read, keep and edit. The order of the keys is the order
// in which a reader looks for them.
[[nodiscard]] QByteArray bindingsToJson(const Bindings &bindings, const QString &program);

// Reads such a text for `program`. Each key must be there once, and no other key. A command may
// have one direction of a scheme. Returns true; or returns false, leaves `bindings`, and puts one
// line into `problem` that names the line of the text and what is wrong there. Memory and time are
// in proportion to the text's size.
[[nodiscard]] bool bindingsFromJson(const QByteArray &text, const QString &program, Bindings &bindings,
                                    QString &problem);

} // namespace launcher
