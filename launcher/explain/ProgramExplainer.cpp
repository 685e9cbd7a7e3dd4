// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "launcher/explain/ProgramExplainer.h"

#include "host/files/ExplanationChannel.h"
#include "host/files/Phrase.h"
#include "launcher/Text.h"

#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <vector>

namespace launcher {
namespace {

using gesturewidget::Phrase;

constexpr int kSlice = 50; // milliseconds between two looks at the program
// Bytes. More than any report has. After more, no further message is read.
constexpr int kMaximalReportSize = 8 * 1024 * 1024;
constexpr int kCaught[] = {SIGINT, SIGTERM, SIGHUP};

volatile std::sig_atomic_t caughtSignal = 0;

void onSignal(int number)
{
    caughtSignal = number;
}

// Keeps a signal from ending the launcher before it has ended the program.
class SignalCatcher
{
public:
    SignalCatcher()
    {
        struct sigaction action = {};
        action.sa_handler = onSignal;
        for (std::size_t i = 0; i < std::size(kCaught); ++i)
            ::sigaction(kCaught[i], &action, &m_before[i]);
    }
    ~SignalCatcher()
    {
        for (std::size_t i = 0; i < std::size(kCaught); ++i)
            ::sigaction(kCaught[i], &m_before[i], nullptr);
    }
    SignalCatcher(const SignalCatcher &) = delete;
    SignalCatcher &operator=(const SignalCatcher &) = delete;

private:
    struct sigaction m_before[std::size(kCaught)];
};

std::vector<char *> pointersTo(const QList<QByteArray> &strings)
{
    std::vector<char *> pointers;
    for (const QByteArray &string : strings)
        pointers.push_back(const_cast<char *>(string.constData())); // exec writes nothing
    pointers.push_back(nullptr);
    return pointers;
}

// Runs in the child, so it calls only what is allowed between fork() and exec().
[[noreturn]] void become(const char *path, char *const *arguments, char *const *environment, int socket)
{
    ::setpgid(0, 0);
    ::fcntl(socket, F_SETFD, 0); // the program inherits this one
    const int nothing = ::open("/dev/null", O_RDWR);
    ::dup2(nothing, STDIN_FILENO);
    ::dup2(nothing, STDOUT_FILENO);
    ::execvpe(path, arguments, environment);
    char text[64];
    const int size = std::snprintf(text, sizeof text, "{\"cannotRun\":%d}\n", errno);
    if (size > 0)
        ::send(socket, text, static_cast<std::size_t>(size), MSG_NOSIGNAL);
    ::_exit(127);
}

} // namespace

ProgramExplainer::ProgramExplainer(const QByteArray &path, const QList<QByteArray> &arguments,
                                   const Environment &environment)
    : ProgramExplainer(path, arguments, environment, Patience())
{
}

ProgramExplainer::ProgramExplainer(const QByteArray &path, const QList<QByteArray> &arguments,
                                   const Environment &environment, const Patience &patience)
    : m_path(path)
    , m_arguments(arguments)
    , m_environment(environment)
    , m_patience(patience)
{
}

ProgramExplainer::~ProgramExplainer()
{
    end();
}

ProgramExplanation ProgramExplainer::run()
{
    ProgramExplanation explanation;
    caughtSignal = 0;
    const SignalCatcher catcher;
    if (start(explanation.complaint)) {
        listen(explanation);
        end();
    }
    explanation.signal = caughtSignal;
    return explanation;
}

bool ProgramExplainer::start(QString &complaint)
{
    int sockets[2] = {-1, -1};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, sockets) != 0) {
        complaint = QString::fromLocal8Bit(std::strerror(errno));
        return false;
    }
    m_environment.insert(gesturewidget::kExplanationVariable,
                         gesturewidget::explanationValue(sockets[1]));
    const QList<QByteArray> entries = environmentEntries(m_environment);
    const std::vector<char *> arguments = pointersTo(m_arguments);
    const std::vector<char *> environment = pointersTo(entries);
    const char *path = m_path.constData();
    const pid_t child = ::fork();
    if (child == 0)
        become(path, arguments.data(), environment.data(), sockets[1]);
    const int reason = errno;
    ::close(sockets[1]);
    m_socket = sockets[0];
    if (child < 0) {
        complaint = QString::fromLocal8Bit(std::strerror(reason));
        return false;
    }
    m_child = child;
    ::setpgid(child, child); // the child does the same; one of the two is first
    return true;
}

void ProgramExplainer::listen(ProgramExplanation &explanation)
{
    QElapsedTimer all; // since the start, then since the first report
    QElapsedTimer quiet;
    all.start();
    QByteArray text;
    bool isOpen = true;
    while (explanation.complaint.isEmpty() && caughtSignal == 0) {
        pollfd poll = {m_socket, POLLIN, 0};
        const int ready = ::poll(&poll, isOpen ? 1 : 0, kSlice);
        if (ready > 0) {
            char part[4096];
            const ssize_t count = ::recv(m_socket, part, sizeof part, MSG_DONTWAIT);
            if (count > 0)
                text.append(part, static_cast<int>(count));
            else if (count == 0 || (errno != EAGAIN && errno != EINTR))
                isOpen = false;
            const bool hadReport = !explanation.profile.isEmpty();
            for (auto end = text.indexOf('\n'); end >= 0; end = text.indexOf('\n')) {
                take(text.left(end), explanation);
                text.remove(0, static_cast<int>(end) + 1);
            }
            if (m_hasNews)
                quiet.start();
            if (!hadReport && !explanation.profile.isEmpty())
                all.start();
            m_hasNews = false;
            if (text.size() > kMaximalReportSize)
                isOpen = false;
            continue;
        }
        const bool hasReport = !explanation.profile.isEmpty();
        // A script may end before the program that it has started loads the plug-in. The socket
        // stays open until the last of them has ended.
        if (hasEnded() && (m_teller != 0 || !isOpen)) {
            if (!hasReport)
                explanation.complaint =
                    Text::tr("it %1 before it had shown a main window with menus").arg(howItEnded());
            return;
        }
        if (hasReport) {
            const int most = m_views > 0 ? m_patience.more : m_patience.firstView;
            if (quiet.hasExpired(most) || all.hasExpired(m_patience.all))
                return;
        } else if (all.hasExpired(m_patience.window)) {
            explanation.complaint = m_teller == 0
                                      ? Text::tr("it has not loaded the plug-in in %1 seconds")
                                      : Text::tr("it has shown no main window with menus in %1 "
                                                 "seconds; a dialog may be waiting");
            explanation.complaint = explanation.complaint.arg(m_patience.window / 1000);
        }
    }
}

void ProgramExplainer::take(const QByteArray &line, ProgramExplanation &explanation)
{
    const QJsonObject message = QJsonDocument::fromJson(line).object();
    const auto value = [&message](const char *key) { return message.value(QLatin1String(key)); };
    if (value("cannotRun").isDouble())
        explanation.complaint = QString::fromLocal8Bit(std::strerror(value("cannotRun").toInt()));
    if (value("process").isDouble())
        m_teller = value("process").toInt();
    if (!value("problem").isUndefined() && explanation.profile.isEmpty())
        explanation.complaint = Phrase::fromJson(value("problem")).translated().simplified();
    if (!value("profile").isObject())
        return;
    m_hasNews = true;
    m_views = value("views").toInt();
    explanation.profile = value("profile").toObject();
    explanation.lines.clear();
    const QJsonArray lines = value("lines").toArray();
    for (const QJsonValue &text : lines)
        explanation.lines.append(Phrase::fromJson(text).translated().simplified());
}

// Returns whether the program has ended. Once a process has loaded the plug-in, that is the
// program; before, it is the process that was started.
bool ProgramExplainer::hasEnded()
{
    if (!m_isReaped && m_child > 0)
        m_isReaped = ::waitpid(m_child, &m_status, WNOHANG) == m_child;
    const bool isElsewhere = m_teller != 0 && m_teller != m_child;
    return m_isReaped && (!isElsewhere || ::kill(m_teller, 0) != 0);
}

// Returns whether the program or anything that it has started is alive.
bool ProgramExplainer::isAlive()
{
    return !hasEnded() || ::kill(-m_child, 0) == 0;
}

bool ProgramExplainer::waitForEnd()
{
    QElapsedTimer waited;
    waited.start();
    while (isAlive() && !waited.hasExpired(m_patience.end))
        ::poll(nullptr, 0, kSlice);
    return !isAlive();
}

void ProgramExplainer::end()
{
    if (m_socket >= 0)
        ::close(m_socket); // this tells the plug-in to quit the program
    m_socket = -1;
    if (m_child <= 0)
        return;
    const auto sendAll = [this](int number) {
        ::kill(-m_child, number);
        if (m_teller > 0 && m_teller != m_child && !hasEnded())
            ::kill(m_teller, number);
    };
    // Without the plug-in nobody tells it to quit.
    const bool mayQuit = m_teller != 0;
    if (!(mayQuit && waitForEnd())) {
        sendAll(SIGTERM);
        if (!waitForEnd())
            sendAll(SIGKILL);
    }
    if (!m_isReaped)
        ::waitpid(m_child, &m_status, 0);
    m_isReaped = true;
    m_child = 0;
}

QString ProgramExplainer::howItEnded() const
{
    return m_isReaped && WIFSIGNALED(m_status)
             ? Text::tr("was ended by signal %1").arg(WTERMSIG(m_status))
             : Text::tr("ended with status %1").arg(WEXITSTATUS(m_status));
}

} // namespace launcher
