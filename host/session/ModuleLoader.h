// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sdk/od/OdRxModule.h"

#include <QString>

namespace gesturewidget {

// Loads one module's library and creates the module object in it. Nothing that a file may
// hold leaves here as a crash or an exception, short of code that runs wild while it is
// being loaded.
//
// The library is never unloaded: windows that the module has made may be destroyed later
// than the module object, and their code is in there.
class ModuleLoader
{
public:
    ModuleLoader();
    ~ModuleLoader(); // leaves the module object alone
    Q_DISABLE_COPY_MOVE(ModuleLoader)

    // Returns false, with one line that says why in `error`, if the file is no module or one
    // for another version of the platform; module() is null then.
    bool load(const QString &file, QString *error);
    [[nodiscard]] OdRxModule *module() const { return m_module; }

    // Calls the module's initApp(). Returns false, with one line in `error`, if it throws.
    bool initialize(QString *error);
    // Calls uninitApp(), or destroys the module object; both do nothing without one, and
    // swallow what the module throws.
    void uninitialize();
    void destroy();

private:
    OdRxModule *m_module = nullptr;
    QString m_file;
};

} // namespace gesturewidget
