// SPDX-License-Identifier: GPL-3.0-or-later
#include "logdb/catchdays.h"

#include "db/storedforms.h"
#include "logdb/catches.h"
#include "logdb/catchtally.h"

#include <QDate>
#include <QFileInfo>
#include <QSqlQuery>

namespace {

// A stored "HH:MM:SS" as clock hours.
std::optional<double> HoursOfStoredTime(const QVariant& value)
{
    const std::optional<double> serial = StoredSerial(value.toString().toStdString());
    if (value.isNull() || !serial)
        return std::nullopt;
    return *serial * 24.0;
}

CatchDay DayOfRow(const QSqlQuery& q)
{
    CatchDay day;
    const QDate date = QDate::fromString(q.value(0).toString(), Qt::ISODate);
    day.Year = date.year();
    day.Month = date.month();
    day.Day = date.day();
    day.Rating = q.value(1).toInt();
    day.MoonAge = q.value(2).toInt();
    for (int column : {3, 4})
        if (const std::optional<double> hours = HoursOfStoredTime(q.value(column)))
            day.PeriodHours.push_back(*hours);
    for (int column : {5, 6})
        if (const std::optional<double> hours = NumberOf(q.value(column)); hours && *hours >= 0)
            day.PeriodHours.push_back(*hours);
    if (const std::optional<double> taken = NumberOf(q.value(7)))
        day.TotalTaken = static_cast<int>(*taken);
    day.PeakTime = q.value(8).toString().toStdString();
    day.Notes = q.value(9).toString().toStdString();
    return day;
}

} // namespace

DbResult ReadCatchDays(const QString& path, std::vector<CatchDay>& days)
{
    Database db;
    if (DbResult opened = db.Open(path); !opened)
        return opened;
    QSqlQuery q(db.Connection());
    q.setForwardOnly(true);
    if (!q.exec(QStringLiteral("SELECT JulianDate, GraphicType, MoonAge, Major1, Major2, Minor1, "
                               "Minor2, TotalTaken, PeakTime, Notes FROM table1")))
        return DbResult::Failure(ErrorText(q.lastError()));
    while (q.next()) {
        CatchDay day = DayOfRow(q);
        if (day.Year != 0)
            days.push_back(std::move(day));
    }
    return q.lastError().isValid() ? DbResult::Failure(ErrorText(q.lastError()))
                                   : DbResult::Success();
}

DbResult CatchStatisticsOf(const QStringList& paths, CatchStatistics& stats)
{
    std::vector<CatchDay> days;
    for (const QString& path : paths)
        if (DbResult read = ReadCatchDays(path, days); !read)
            return DbResult::Failure(
                QStringLiteral("%1: %2").arg(QFileInfo(path).fileName(), read.Message));
    stats = ComputeCatchStatistics(days);
    return DbResult::Success();
}

namespace {

CatchFact FactOfRow(const QSqlQuery& q)
{
    CatchFact c;
    c.Species = q.value(0).toString().toStdString();
    c.Spot = q.value(1).toString().toStdString();
    c.Count = q.value(2).toInt();
    c.Released = q.value(3).toInt() != 0;
    c.Hour = HoursOfStoredTime(q.value(4));
    if (const std::optional<double> water = NumberOf(q.value(5)))
        c.WaterTemp = water;
    for (int column : {6, 7})
        if (const std::optional<double> hours = HoursOfStoredTime(q.value(column)))
            c.Majors.push_back(*hours);
    for (int column : {8, 9})
        if (const std::optional<double> hours = NumberOf(q.value(column)); hours && *hours >= 0)
            c.Minors.push_back(*hours);
    c.SunRise = HoursOfStoredTime(q.value(10));
    c.SunSet = HoursOfStoredTime(q.value(11));
    return c;
}

} // namespace

DbResult ReadCatchFacts(const QString& path, std::vector<CatchFact>& facts)
{
    Database db;
    if (DbResult opened = db.Open(path); !opened)
        return opened;
    if (!db.Tables().contains(QLatin1String(CatchTableName)))
        return DbResult::Success(); // a file without catches
    QSqlQuery q(db.Connection());
    q.setForwardOnly(true);
    if (!q.exec(QStringLiteral(
            "SELECT c.Species, c.Spot, c.FishCount, c.Released, c.CatchTime, c.WaterTemp, "
            "t.Major1, t.Major2, t.Minor1, t.Minor2, t.SunRise, t.SunSet FROM Catches c "
            "LEFT JOIN table1 t ON t.JulianDate = c.JulianDate")))
        return DbResult::Failure(ErrorText(q.lastError()));
    while (q.next())
        facts.push_back(FactOfRow(q));
    return q.lastError().isValid() ? DbResult::Failure(ErrorText(q.lastError()))
                                   : DbResult::Success();
}

DbResult CatchBreakdownOf(const QStringList& paths, CatchBreakdown& breakdown)
{
    std::vector<CatchFact> facts;
    for (const QString& path : paths)
        if (DbResult read = ReadCatchFacts(path, facts); !read)
            return DbResult::Failure(
                QStringLiteral("%1: %2").arg(QFileInfo(path).fileName(), read.Message));
    breakdown = ComputeCatchBreakdown(facts);
    return DbResult::Success();
}
