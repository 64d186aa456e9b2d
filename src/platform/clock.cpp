#include "platform/clock.h"

#include <QByteArray>

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
