// SPDX-License-Identifier: GPL-3.0-or-later
#include "logdb/yearplace.h"

#include "astro/astronomy.h"

#include <QSqlQuery>

#include <cmath>

namespace {

constexpr auto PlaceTable = "QuillmerePlace";

// The clock the site's times are on: its zone's own, or the whole-hour zone with or without
// the program-wide daylight-saving hour.
QString ClockName(const Observer& site)
{
    if (!site.Clock.Empty())
        return QStringLiteral("Local Clock");
    return site.DstOffsetDays != 0.0 ? QStringLiteral("Daylight Savings")
                                     : QStringLiteral("Standard");
}

// "31.25N", "92.42W": degrees with two decimals and the side of the equator or meridian.
QString Degrees(double value, char positive, char negative)
{
    return QString::number(std::fabs(value), 'f', 2) + QLatin1Char(value < 0 ? negative : positive);
}

} // namespace

YearPlace PlaceOfEngine(const Astronomy& engine, const QString& name)
{
    const Observer& site = engine.Site;
    return {name,
            site.CurLatitude,
            site.CurLongitude,
            site.CurTimeZone,
            QString::fromStdString(site.Clock.Name),
            ClockName(site)};
}

DbResult WriteYearPlace(const QString& path, const YearPlace& place)
{
    Database db;
    if (DbResult opened = db.Open(path); !opened)
        return opened;
    const QString table = QLatin1String(PlaceTable);
    return db.InTransaction([&]() -> DbResult {
        QSqlQuery q(db.Connection());
        const bool written =
            q.exec(QStringLiteral("CREATE TABLE IF NOT EXISTS %1 (Name TEXT, Latitude REAL, "
                                  "Longitude REAL, TimeZone INTEGER, TzName TEXT, Clock TEXT)")
                       .arg(table)) &&
            q.exec(QStringLiteral("DELETE FROM %1").arg(table)) &&
            q.prepare(QStringLiteral("INSERT INTO %1 VALUES (?, ?, ?, ?, ?, ?)").arg(table));
        if (!written)
            return DbResult::Failure(ErrorText(q.lastError(), path));
        for (const QVariant& value :
             {QVariant(place.Name), QVariant(place.Latitude), QVariant(place.Longitude),
              QVariant(place.TimeZone), QVariant(place.TzName), QVariant(place.Clock)})
            q.addBindValue(value);
        return q.exec() ? DbResult::Success() : DbResult::Failure(ErrorText(q.lastError(), path));
    });
}

std::optional<YearPlace> ReadYearPlace(const QString& path)
{
    Database db;
    if (!db.Open(path) || !db.Tables().contains(QLatin1String(PlaceTable), Qt::CaseInsensitive))
        return std::nullopt;
    QSqlQuery q(db.Connection());
    if (!q.exec(QStringLiteral("SELECT Name, Latitude, Longitude, TimeZone, TzName, Clock FROM %1")
                    .arg(QLatin1String(PlaceTable))) ||
        !q.next())
        return std::nullopt;
    return YearPlace{q.value(0).toString(), q.value(1).toDouble(), q.value(2).toDouble(),
                     q.value(3).toInt(),    q.value(4).toString(), q.value(5).toString()};
}

QString YearPlaceText(const YearPlace& place)
{
    const QString zone = place.TzName.isEmpty()
                             ? QStringLiteral("zone %1 hours west").arg(place.TimeZone)
                             : place.TzName;
    return QStringLiteral("%1  %2 %3  %4, %5")
        .arg(place.Name, Degrees(place.Latitude, 'N', 'S'), Degrees(place.Longitude, 'W', 'E'),
             zone, place.Clock);
}
