// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/singleinstance.h"

#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLoggingCategory>
#include <QStandardPaths>

namespace {
Q_LOGGING_CATEGORY(InstanceLog, "quillmere.instance", QtWarningMsg)

const QByteArray RaiseRequest = QByteArrayLiteral("raise\n");
constexpr int AnswerMs = 2000; // a running copy answers at once; a hung one is not waited for
} // namespace

SingleInstance::SingleInstance(const QString& name)
{
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty())
        folder = QDir::tempPath();
    ChannelName = folder + "/" + name + ".channel";
    Lock = std::make_unique<QLockFile>(folder + "/" + name + ".lock");
    Lock->setStaleLockTime(0); // only a lock whose owner process is gone counts as stale
}

SingleInstance::~SingleInstance() = default;

bool SingleInstance::Acquire() { return Lock->tryLock(0); }

void SingleInstance::Listen(const std::function<void()>& raise)
{
    Server = new QLocalServer(this);
    Server->setSocketOptions(QLocalServer::UserAccessOption);
    QLocalServer::removeServer(ChannelName); // left by a copy that crashed; the lock is ours
    if (!Server->listen(ChannelName)) {
        qCWarning(InstanceLog) << "no channel for a second start:" << Server->errorString();
        return;
    }
    qCInfo(InstanceLog) << "listening";
    connect(Server, &QLocalServer::newConnection, this, [this, raise] {
        while (QLocalSocket* socket = Server->nextPendingConnection()) {
            connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
            connect(socket, &QLocalSocket::readyRead, this, [socket, raise] {
                if (!socket->canReadLine() || socket->readLine() != RaiseRequest)
                    return;
                qCInfo(InstanceLog) << "raise requested";
                raise();
            });
        }
    });
}

bool SingleInstance::AskToRaise() const
{
    QLocalSocket socket;
    socket.connectToServer(ChannelName);
    if (!socket.waitForConnected(AnswerMs))
        return false;
    socket.write(RaiseRequest);
    const bool sent = socket.waitForBytesWritten(AnswerMs);
    socket.disconnectFromServer();
    return sent;
}
