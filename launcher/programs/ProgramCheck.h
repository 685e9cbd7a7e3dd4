#pragma once

#include "launcher/programs/LaunchEnvironment.h"
#include "launcher/programs/PluginFolders.h"

#include <QByteArray>
#include <QList>
#include <QString>

namespace launcher {

// The statuses that env, nohup and timeout give for the same reasons.
constexpr int kLauncherFailed = 125;
constexpr int kCannotRun = 126;
constexpr int kNotFound = 127;

// Where execvp() looks when there is no PATH.
constexpr char kDefaultSearchPath[] = "/bin:/usr/bin";

// Whether a program can be started with gestures.
struct ProgramCheck
{
    // `program` as typed; `plugins` are the folders that hold the plug-in.
    [[nodiscard]] static ProgramCheck of(const QByteArray &program, const Environment &environment,
                                         const QList<PluginFolder> &plugins);

    int status = 0; // one of the above when it cannot
    QString complaint; // one line then
    QByteArray path;
};

} // namespace launcher
