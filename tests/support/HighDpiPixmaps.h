// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <qglobal.h>
#include <qnamespace.h>

namespace tests {

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
// With this attribute a program of Qt 5 asks for icons of the screen's density. Qt 6 knows it and
// ignores it.
constexpr Qt::ApplicationAttribute kUseHighDpiPixmaps = Qt::AA_UseHighDpiPixmaps;
QT_WARNING_POP

} // namespace tests
