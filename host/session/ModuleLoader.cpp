// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/session/ModuleLoader.h"

#include "host/files/Text.h"
#include "host/session/LibraryFile.h"

#include <QFileInfo>
#include <QLibrary>

#include <algorithm>
#include <exception>
#include <utility>

namespace gesturewidget {
namespace {

// The name under which the module is created.
constexpr wchar_t kModuleName[] = L"GestureWidget";

QString versionText(const int (&version)[4])
{
    return QStringLiteral("%1.%2.%3.%4").arg(version[0]).arg(version[1]).arg(version[2]).arg(version[3]);
}

// Runs `call`. If it throws, returns false and puts the text of the exception into `what`.
template <class Call> bool runGuarded(Call call, QString *what)
{
    try {
        call();
        return true;
    } catch (const std::exception &exception) {
        *what = QString::fromLocal8Bit(exception.what());
    } catch (...) {
        *what = Text::tr("an unknown exception");
    }
    return false;
}

} // namespace

ModuleLoader::ModuleLoader() = default;
ModuleLoader::~ModuleLoader() = default;

bool ModuleLoader::load(const QString &file, QString *error)
{
    m_file = file;
    if (!QFileInfo::exists(file)) {
        *error = Text::tr("there is no module '%1'").arg(file);
        return false;
    }
    const QString problem = problemOfLibraryFile(file);
    if (!problem.isEmpty()) {
        *error = Text::tr("the module '%1' cannot be loaded: %2").arg(file, problem);
        return false;
    }
    QLibrary library(file);
    // A missing symbol must fail here, not when it is called.
    library.setLoadHints(QLibrary::PreventUnloadHint | QLibrary::ResolveAllSymbolsHint);
    if (!library.load()) {
        *error = Text::tr("the module cannot be loaded: %1").arg(library.errorString().simplified());
        return false;
    }
    const auto getVersion = reinterpret_cast<OdGetApiVersion>(library.resolve("odrxGetAPIVersion"));
    const auto create =
        reinterpret_cast<OdCreateModuleObject>(library.resolve("odrxCreateModuleObject"));
    if (!getVersion || !create) {
        *error = Text::tr("'%1' is not a module: it lacks %2")
                     .arg(file, getVersion ? QStringLiteral("odrxCreateModuleObject")
                                           : QStringLiteral("odrxGetAPIVersion"));
        return false;
    }
    QString what;
    int version[4] = {};
    if (!runGuarded([&] { getVersion(version[0], version[1], version[2], version[3]); }, &what)) {
        *error = Text::tr("the module '%1' failed to name its version: %2").arg(file, what);
        return false;
    }
    if (!std::equal(version, version + 4, kOdApiVersion)) {
        *error = Text::tr("the module '%1' is for version %2 of the platform, this is %3")
                     .arg(file, versionText(version), versionText(kOdApiVersion));
        return false;
    }
    if (!runGuarded([&] { m_module = create(nullptr, kModuleName); }, &what) || !m_module) {
        *error = Text::tr("the module '%1' could not be created: %2")
                     .arg(file, what.isEmpty() ? Text::tr("it gave no object") : what);
        return false;
    }
    return true;
}

bool ModuleLoader::initialize(QString *error)
{
    QString what;
    if (runGuarded([this] { m_module->initApp(); }, &what))
        return true;
    *error = Text::tr("the module '%1' could not start: %2").arg(m_file, what);
    return false;
}

void ModuleLoader::uninitialize()
{
    QString what;
    if (m_module)
        runGuarded([this] { m_module->uninitApp(); }, &what);
}

void ModuleLoader::destroy()
{
    QString what;
    if (OdRxModule *module = std::exchange(m_module, nullptr))
        runGuarded([module] { module->deleteModule(); }, &what);
}

} // namespace gesturewidget
