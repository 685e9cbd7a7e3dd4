// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "host/files/ExplanationChannel.h"

#include <QJsonDocument>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

namespace gesturewidget {
namespace {

constexpr int kPatience = 1; // seconds

} // namespace

QByteArray explanationValue(int socket)
{
    struct stat status = {};
    if (::fstat(socket, &status) != 0 || !S_ISSOCK(status.st_mode))
        return {};
    return QByteArray::number(socket) + ':' + QByteArray::number(static_cast<qulonglong>(status.st_ino));
}

int explanationSocket(const QByteArray &value)
{
    bool isNumber = false;
    const int socket = value.left(value.indexOf(':')).toInt(&isNumber);
    if (!isNumber || socket <= STDERR_FILENO || value != explanationValue(socket))
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
