// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/systemlocale.h"

#include "model/settings.h"

#include <algorithm>

#include <QDate>
#include <QDateTime>
#include <QLocale>
#include <QTimeZone>

int SystemDaylightBias()
{
    const QTimeZone zone = QTimeZone::systemTimeZone();
    if (!zone.hasDaylightTime())
        return DefaultDaylightBias;
    const QDateTime now = QDateTime::currentDateTimeUtc();
    // The daylight offset of the coming summer, whichever half of the year we are in.
    int dst = zone.daylightTimeOffset(now);
    for (int month = 1; dst == 0 && month <= 12; ++month)
        dst = zone.daylightTimeOffset(QDateTime(QDate(now.date().year(), month, 15), {}, Qt::UTC));
    return dst == 0 ? DefaultDaylightBias : -dst / SecondsPerMinute;
}

DateOrder DateOrderFromShortDate(const QString& text)
{
    const bool numeric =
        text.size() >= 3 && text[0].isDigit() && text[1].isDigit() &&
        std::none_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
    if (!numeric)
        return {};
    return {!text.startsWith(QLatin1String("31")), text[2]};
}

DateOrder SystemDateOrder()
{
    return DateOrderFromShortDate(
        QLocale::system().toString(QDate(1997, 12, 31), QLocale::ShortFormat));
}
