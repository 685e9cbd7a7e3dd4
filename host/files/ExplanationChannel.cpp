#include "host/files/ExplanationChannel.h"

#include <QJsonDocument>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

namespace gesturewidget {
namespace {

constexpr int kPatience = 1; // seconds

} // namespace

int explanationSocket(const QByteArray &value)
{
    bool isNumber = false;
    const int socket = value.toInt(&isNumber);
    int type = 0;
    socklen_t size = sizeof type;
    if (!isNumber || socket <= STDERR_FILENO
        || ::getsockopt(socket, SOL_SOCKET, SO_TYPE, &type, &size) != 0 || type != SOCK_STREAM)
        return -1;
    ::fcntl(socket, F_SETFD, FD_CLOEXEC);
    const timeval patience = {kPatience, 0};
    ::setsockopt(socket, SOL_SOCKET, SO_SNDTIMEO, &patience, sizeof patience);
    return socket;
}

bool tell(int socket, const QJsonObject &message)
{
    const QByteArray line = QJsonDocument(message).toJson(QJsonDocument::Compact) + '\n';
    qsizetype sent = 0;
    while (socket >= 0 && sent < line.size()) {
        const ssize_t count = ::send(socket, line.constData() + sent,
                                     static_cast<std::size_t>(line.size() - sent), MSG_NOSIGNAL);
        if (count <= 0)
            return false;
        sent += count;
    }
    return socket >= 0;
}

} // namespace gesturewidget
