#include "host/GestureHost.h"

#include "host/HostSession.h"
#include "host/InstallPaths.h"

namespace {

GestureHost::Options completed(GestureHost::Options options)
{
    if (options.program.isEmpty())
        options.program = host::programName();
    if (options.moduleFile.isEmpty())
        options.moduleFile = host::moduleFile();
    if (options.settingsFile.isEmpty())
        options.settingsFile = host::settingsFile(options.program);
    return options;
}

} // namespace

GestureHost::Options GestureHost::optionsForThisProgram()
{
    Options options;
    options.profileFolders = host::profileFolders();
    options.guesses = true;
    return completed(options);
}

GestureHost::GestureHost(QMainWindow *window)
    : GestureHost(window, Options())
{
}

GestureHost::GestureHost(QMainWindow *window, const Options &options)
    : m_session(std::make_unique<host::HostSession>(window, completed(options)))
{
}

GestureHost::~GestureHost()
{
    host::HostSession::retire(std::move(m_session));
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

void GestureHost::addView(QWidget *view)
{
    m_session->addView(view);
}
