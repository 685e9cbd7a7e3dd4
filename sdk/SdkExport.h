// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

// Marks what the sdk library exports to hosts and modules.
#if defined(GESTUREWIDGET_SDK_LIBRARY)
#    define GESTUREWIDGET_SDK_EXPORT Q_DECL_EXPORT
#else
#    define GESTUREWIDGET_SDK_EXPORT Q_DECL_IMPORT
#endif
