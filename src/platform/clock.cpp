// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/clock.h"

#include <QByteArray>
#include <QTimeZone>

QDateTime Clock::Now()
{
    const QByteArray fixed = qgetenv("QUILLMERE_NOW");
    if (!fixed.isEmpty()) {
        QDateTime t = QDateTime::fromString(QString::fromLatin1(fixed), Qt::ISODate);
        if (t.isValid())
            return t;
    }
    return QDateTime::currentDateTime();
}

QDateTime Clock::NowIn(const std::string& zone)
{
    const QByteArray id = QByteArray::fromStdString(zone);
    const QDateTime now = Now();
    return QTimeZone::isTimeZoneIdAvailable(id) ? now.toTimeZone(QTimeZone(id)) : now;
}
