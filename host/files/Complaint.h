#pragma once

#include <QString>

namespace gesturewidget {

// Writes one line to standard error, under the name that all of this project's lines have.
void complain(const QString &line);

} // namespace gesturewidget
