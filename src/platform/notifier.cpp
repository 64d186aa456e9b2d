// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/notifier.h"

#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QVariantMap>

namespace {
const QString Service = QStringLiteral("org.freedesktop.Notifications");
const QString Path = QStringLiteral("/org/freedesktop/Notifications");
const QString AppId = QStringLiteral("io.github.quillmere.Quillmere");
// The service's own expiry, and its normal urgency (the hint is a byte).
constexpr int ServerExpiry = -1;
constexpr uchar NormalUrgency = 1;
} // namespace

Notifier::Notifier(QDBusConnection bus) : Bus(std::move(bus)) {}

bool Notifier::Send(const Notification& n)
{
    if (!Bus.isConnected())
        return false;
    QDBusMessage call =
        QDBusMessage::createMethodCall(Service, Path, Service, QStringLiteral("Notify"));
    const QVariantMap hints{{QStringLiteral("desktop-entry"), AppId},
                            {QStringLiteral("urgency"), QVariant::fromValue(NormalUrgency)}};
    call << QStringLiteral("Quillmere") << 0U << AppId << n.Summary << n.Body << QStringList()
         << hints << ServerExpiry;
    // Asynchronous, and without introspecting the service first, so that a slow or missing
    // service never holds up the windows.
    Bus.asyncCall(call);
    return true;
}
