#pragma once

#include <QtGlobal>

// Marks what the interface library offers to the host and to modules.
#if defined(GESTUREWIDGET_SDK_LIBRARY)
#    define SDK_EXPORT Q_DECL_EXPORT
#else
#    define SDK_EXPORT Q_DECL_IMPORT
#endif
