// SPDX-License-Identifier: GPL-3.0-or-later
// One running copy: a lock file in the user's runtime folder, released when the program ends
// (or found stale when it crashed), and beside it a local channel on which a second start
// asks the running copy to come to the front.
#pragma once

#include <QLockFile>
#include <QObject>
#include <QString>

#include <functional>
#include <memory>

class QLocalServer;

class SingleInstance : public QObject {
    Q_OBJECT
public:
    explicit SingleInstance(const QString& name = QStringLiteral("quillmere"));
    ~SingleInstance() override;
    // True when this process holds the lock; false when another copy runs.
    bool Acquire();
    // Once the lock is held: calls raise whenever a second start asks.
    void Listen(const std::function<void()>& raise);
    // From a second start: asks the running copy to come to the front; true when it was told.
    bool AskToRaise() const;

private:
    QString ChannelName;
    std::unique_ptr<QLockFile> Lock;
    QLocalServer* Server = nullptr;
};
