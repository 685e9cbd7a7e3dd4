// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace gesturewidget {

// Returns whether a caption names a document, as the entries of recent files and open windows do:
// it holds the path of a file, or ends with the name of one, such as "1 drawing.dxf *". What a
// person works on is private, so such entries are not remembered.
[[nodiscard]] bool namesADocument(const QString &caption);

// Returns a caption without the document that it names in quotation marks: "Close" for
// Close "house.dxf". Returns the whole caption if nothing else would be left of it.
[[nodiscard]] QString withoutDocument(const QString &caption);

} // namespace gesturewidget
