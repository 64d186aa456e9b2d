// SPDX-License-Identifier: GPL-3.0-or-later
// Desktop notifications through the desktop's notification service
// (org.freedesktop.Notifications on the session bus). Sending never waits for the service:
// a desktop without one loses the notification, not the program's time.
#pragma once

#include <QDBusConnection>
#include <QString>

struct Notification {
    QString Summary;
    QString Body;
};

class Notifier {
public:
    explicit Notifier(QDBusConnection bus = QDBusConnection::sessionBus());
    // False when there is no bus to send it on.
    bool Send(const Notification& n);

private:
    QDBusConnection Bus;
};
