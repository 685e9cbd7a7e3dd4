// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/od/OdRxModule.h"

#include <QString>

namespace gesturewidget {

// Loads one module's library and creates the module object in it. No file causes a crash or an
// exception here, unless its code misbehaves while it is loaded.
//
// The library is never unloaded. It holds the code of the module's windows, which may be destroyed
// later than the module object.
class ModuleLoader
{
public:
    ModuleLoader();
    ~ModuleLoader(); // leaves the module object alone
    Q_DISABLE_COPY_MOVE(ModuleLoader)

    // If the file is not a module, or is one for another version of the platform, returns false and
    // puts one line that says why into `error`; module() is null then.
    bool load(const QString &file, QString *error);
    [[nodiscard]] OdRxModule *module() const { return m_module; }

    // Calls the module's initApp(). Returns false, with one line in `error`, if it throws.
    bool initialize(QString *error);
    // Calls uninitApp(), or destroys the module object. Both do nothing without one, and swallow
    // the module's exceptions.
    void uninitialize();
    void destroy();

private:
    OdRxModule *m_module = nullptr;
    QString m_file;
};

} // namespace gesturewidget
