// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

// Marks what the host library offers to programs.
#if defined(GESTUREWIDGET_HOST_LIBRARY)
#    define GESTUREWIDGET_HOST_EXPORT Q_DECL_EXPORT
#else
#    define GESTUREWIDGET_HOST_EXPORT Q_DECL_IMPORT
#endif
