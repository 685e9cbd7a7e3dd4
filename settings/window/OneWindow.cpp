// SPDX-FileCopyrightText: 2026 GestureWidget developers
// SPDX-License-Identifier: MIT

#include "settings/window/OneWindow.h"

#include <QDir>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>
#include <QUrl>

namespace settings {
namespace {

// The whole answer of the first process.
constexpr char kAnswer = '1';

} // namespace

OneWindow::OneWindow(const QString &place, QObject *parent)
    : QObject(parent)
    , m_place(place)
    , m_server(std::make_unique<QLocalServer>())
{
    connect(m_server.get(), &QLocalServer::newConnection, this, &OneWindow::answer);
    if (place.isEmpty())
        return;
    m_lock.emplace(place + QLatin1String(".lock"));
    m_lock->setStaleLockTime(0); // a window may be open for days
    if (!m_lock->tryLock(0))
        return;
    // With this option Qt moves the socket to its place, over one that a killed process left behind.
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    m_server->listen(place);
}

OneWindow::~OneWindow() = default;

QString OneWindow::usualPlace()
{
    const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!QFileInfo(folder).isDir())
        return {};
    const QString display = qEnvironmentVariable("WAYLAND_DISPLAY") + qEnvironmentVariable("DISPLAY");
    return QDir(folder).filePath(QStringLiteral("mouse-gestures-")
                                 + QString::fromLatin1(QUrl::toPercentEncoding(display)));
}

bool OneWindow::isShownByAnother()
{
    if (!m_lock || m_lock->isLocked() || m_lock->error() != QLockFile::LockFailedError)
        return false;
    QLocalSocket socket;
    socket.connectToServer(m_place);
    return socket.waitForConnected(kPatience) && socket.waitForReadyRead(kPatience)
        && socket.read(1) == QByteArray(1, kAnswer);
}

void OneWindow::answer()
{
    while (QLocalSocket *socket = m_server->nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        socket->write(&kAnswer, 1);
        socket->disconnectFromServer();
        Q_EMIT asked();
    }
}

} // namespace settings
