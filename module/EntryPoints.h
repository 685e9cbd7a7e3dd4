// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

class OdRxModule;

// A host looks these functions up in the module's file by their exact names.

// The one module object: created by the first call, returned unchanged by every later one,
// whose arguments are ignored. Registers nothing with the host; that is initApp()'s task.
// Throws std::bad_alloc when there is no memory; the next call tries again.
extern "C" Q_DECL_EXPORT OdRxModule *odrxCreateModuleObject(void *sysData, const wchar_t *moduleName);

// The platform version that the module is written against: 3, 8, 1, 0.
extern "C" Q_DECL_EXPORT void odrxGetAPIVersion(int &major, int &minor, int &majorBuild,
                                                int &minorBuild);

// Forgets the module object but does not delete it, for a host that deletes the object itself.
extern "C" Q_DECL_EXPORT void deleteModuleObject();
