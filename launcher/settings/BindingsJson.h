// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "launcher/settings/Bindings.h"

#include <QByteArray>
#include <QMap>
#include <QString>

namespace launcher {

// Bindings as a JSON text that people may read, keep and edit. The order of the keys is the order
// in which a reader looks for them. `rings` are those of single tasks, by the task's name. A text
// without any is the same as before there were rings.
[[nodiscard]] QByteArray bindingsToJson(const Bindings &bindings, const QString &program,
                                        const QMap<QString, Bindings> &rings = {});

// Reads such a text for `program`. Each key must be there once, and no other key. A command may
// have one direction of a scheme. Returns true; or returns false, leaves `bindings` and `rings`, and
// puts one line into `problem` that names the line of the text and what is wrong there. Memory and time
// are in proportion to the text's size. Of a ring, only the scheme and the commands count. `rings` may
// be null.
[[nodiscard]] bool bindingsFromJson(const QByteArray &text, const QString &program, Bindings &bindings,
                                    QString &problem, QMap<QString, Bindings> *rings = nullptr);

} // namespace launcher
