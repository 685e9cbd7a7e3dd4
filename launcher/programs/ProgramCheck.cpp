// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/programs/ProgramCheck.h"

#include "launcher/programs/ProgramLookup.h"
#include "launcher/programs/QtWidgetsUse.h"
#include "launcher/Text.h"

#include <algorithm>
#include <iterator>

namespace launcher {

ProgramCheck ProgramCheck::of(const QByteArray &program, const Environment &environment,
                              const QList<PluginFolder> &plugins)
{
    const QString name = QString::fromLocal8Bit(program);
    const ProgramLookup lookup =
        ProgramLookup::find(program, environment.value("PATH", kDefaultSearchPath));
    switch (lookup.result) {
    case ProgramLookup::Result::Missing:
        return {kNotFound, Text::tr("%1: there is no such program").arg(name), {}, {}};
    case ProgramLookup::Result::NotExecutable:
        return {kCannotRun, Text::tr("%1: the file may not be executed").arg(name), {}, {}};
    case ProgramLookup::Result::IsFolder:
        return {kCannotRun, Text::tr("%1: this is a folder, not a program").arg(name), {}, {}};
    case ProgramLookup::Result::Found:
        break;
    }

    const QtWidgetsUse use = qtWidgetsUse(lookup.path, environment.value("LD_LIBRARY_PATH"),
                                          systemLibraryFolders("/etc/ld.so.conf"));
    if (use == QtWidgetsUse::None)
        return {kCannotRun,
                Text::tr("%1: gestures need a program made with Qt Widgets, "
                         "which this one is not")
                    .arg(name),
                {},
                {}};

    const int wanted = use == QtWidgetsUse::Qt5 ? 5 : use == QtWidgetsUse::Qt6 ? 6 : 0;
    QList<PluginFolder> fitting;
    std::copy_if(
        plugins.begin(), plugins.end(), std::back_inserter(fitting),
        [wanted](const PluginFolder &folder) { return wanted == 0 || folder.qtMajor == wanted; });
    if (fitting.isEmpty())
        return {kLauncherFailed,
                wanted == 0 ? Text::tr("the plug-in libmousegestures is not installed")
                            : Text::tr("%1 uses Qt %2, for which the plug-in "
                                       "libmousegestures-qt%2.so is not installed")
                                  .arg(name)
                                  .arg(wanted),
                {},
                {}};
    return {0, {}, lookup.path, fitting};
}

} // namespace launcher
