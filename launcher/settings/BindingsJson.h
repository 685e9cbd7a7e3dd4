#pragma once

#include "launcher/settings/Bindings.h"

#include <QByteArray>
#include <QString>

namespace launcher {

// Bindings as a JSON text that people may read, keep and edit. The keys stand in the order
// in which one looks for them.
[[nodiscard]] QByteArray bindingsToJson(const Bindings &bindings, const QString &program);

// Reads such a text for `program`. Every key must be there, once, and nothing else; a
// command may have one direction of a scheme. Returns true, or false with one line in
// `problem` that names the line and what is wrong there, and `bindings` as it was.
[[nodiscard]] bool bindingsFromJson(const QByteArray &text, const QString &program, Bindings &bindings,
                                    QString &problem);

} // namespace launcher
