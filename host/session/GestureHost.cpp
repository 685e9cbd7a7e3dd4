// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/session/GestureHost.h"

#include "host/files/InstallPaths.h"
#include "host/session/HostSession.h"

namespace gesturewidget {
namespace {

GestureHost::Options completed(GestureHost::Options options)
{
    if (options.program.isEmpty())
        options.program = programName();
    if (options.profile.isEmpty())
        options.profile = options.program;
    if (options.moduleFile.isEmpty())
        options.moduleFile = moduleFile();
    if (options.settingsFile.isEmpty())
        options.settingsFile = settingsFile(options.program);
    return options;
}

} // namespace

GestureHost::Options GestureHost::optionsForThisProgram()
{
    Options options;
    options.profileFolders = profileFolders();
    options.guesses = true;
    return completed(options);
}

GestureHost::GestureHost(QMainWindow *window)
    : GestureHost(window, optionsForThisProgram())
{
}

GestureHost::GestureHost(QMainWindow *window, const Options &options)
    : m_session(std::make_unique<HostSession>(window, completed(options)))
{
}

GestureHost::~GestureHost()
{
    HostSession::retire(std::move(m_session));
}

bool GestureHost::start(QString *error)
{
    return m_session->start(error);
}

void GestureHost::stop()
{
    m_session->stop();
}

bool GestureHost::isRunning() const
{
    return m_session->isRunning();
}

QMainWindow *GestureHost::mainWindow() const
{
    return m_session->mainWindow();
}

void GestureHost::addView(QWidget *view)
{
    m_session->addView(view);
}

} // namespace gesturewidget
