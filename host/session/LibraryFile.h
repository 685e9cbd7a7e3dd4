#pragma once

#include <QString>

namespace gesturewidget {

// Whether the system's loader can be given a file as a library. The loader answers for a
// file that is none, but maps one that was cut short, by a full disk say, and then ends the
// process at the first page that is not there.
//
// Returns an empty text, or what is wrong with the file.
[[nodiscard]] QString problemOfLibraryFile(const QString &file);

} // namespace gesturewidget
