// SPDX-License-Identifier: GPL-3.0-or-later
// "Local Clock" against independent references: the offsets QTimeZone gives, and the rise,
// transit and set instants of python3-ephem (tests/platform/data, made by
// tools/zone_events_reference.py) turned into each place's clock by QTimeZone.
#include "astro/astronomy.h"
#include "calendar/calendar.h"
#include "platform/timezones.h"

#include <QDateTime>
#include <QFile>
#include <QTimeZone>

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <string>
#include <vector>

namespace {

constexpr double OneMinuteInHours = 1.0 / 60.0;

struct Place {
    const char* Name; // as in the reference file
    const char* Zone;
    double Latitude, LongitudeEast;
    int WholeHours; // the zone a location without a tz zone would carry
};
const Place YearPlaces[] = {
    {"Alexandria LA", "America/Chicago", 31.25, -92.42, 6},
    {"Oslo", "Europe/Oslo", 59.91, 10.75, -1},
    {"Sydney", "Australia/Sydney", -33.87, 151.21, -10},
    {"Kolkata", "Asia/Kolkata", 22.57, 88.36, -5},
    {"St. John's", "America/St_Johns", 47.56, -52.71, 4},
    {"Kathmandu", "Asia/Kathmandu", 27.72, 85.32, -6},
};
const Place NewYork = {"New York", "America/New_York", 40.71, -74.01, 5};
const Place& Sydney = YearPlaces[2];

double JulianDayOf(const QDateTime& t)
{
    return 2440587.5 + double(t.toMSecsSinceEpoch()) / 86400000.0;
}

// The engine at a place on its own clock.
Astronomy LocalClockEngine(const Place& p)
{
    Astronomy engine;
    engine.Site.SetPlace(-p.LongitudeEast, p.Latitude, std::int16_t(p.WholeHours));
    engine.Site.Clock = LoadZoneRules(p.Zone, 2019, 2029);
    engine.Site.TimeFormats = LocalClockMode;
    engine.Site.TwilightsInClockDay = true;
    return engine;
}

// The reference events of a place, by event name and local date: local clock hours.
using DayEvents = std::map<std::pair<std::string, QDate>, std::vector<double>>;

DayEvents ReferenceEvents(const Place& p)
{
    QFile file(QStringLiteral(QUILLMERE_TESTDATA "/zone_events.csv"));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Text));
    const QTimeZone zone(p.Zone);
    DayEvents events;
    while (!file.atEnd()) {
        const QStringList f = QString::fromUtf8(file.readLine()).trimmed().split(',');
        if (f.size() != 5 || f[0] != QLatin1String(p.Name))
            continue;
        QDateTime utc = QDateTime::fromString(f[4], Qt::ISODateWithMs);
        utc.setTimeSpec(Qt::UTC);
        const QDateTime local = utc.toTimeZone(zone);
        events[{f[3].toStdString(), local.date()}].push_back(local.time().msecsSinceStartOfDay() /
                                                             3600000.0);
    }
    return events;
}

// The engine's events of one local day, by the reference file's names; only those it reports
// as falling in the day.
std::map<std::string, double> EngineEvents(Astronomy& engine, const QDate& day)
{
    const double J = engine.JulianDay0(JulianDayOf(QDateTime(day, QTime(12, 0), Qt::UTC)));
    engine.SunEventsForDay(J);
    engine.MoonEventsForDay(J);
    std::map<std::string, double> shown;
    for (const auto& [body, e] :
         {std::pair<std::string, const RiseTransitSet*>{"sun", &engine.Forecast.SunEvents.Horizon},
          {"moon", &engine.Forecast.MoonEvents}})
        for (const auto& [kind, flag, hours] : {std::tuple{"rise", e->RiseFlag, e->RiseTime},
                                                {"transit", e->TransitFlag, e->TransitTime},
                                                {"set", e->SetFlag, e->SetTime}})
            if (flag == EventFlag::InDay)
                shown[body + kind] = hours;
    return shown;
}

// Every reference event of the day is shown once at its time (within a minute), and the day
// shows no event of those names that the reference does not have.
void ExpectDayAgrees(Astronomy& engine, const DayEvents& reference, const QDate& day,
                     const std::vector<std::string>& names, const char* place)
{
    const std::map<std::string, double> shown = EngineEvents(engine, day);
    for (const std::string& name : names) {
        const auto ref = reference.find({name, day});
        const auto ours = shown.find(name);
        const std::string where =
            std::string(place) + " " + name + " " + day.toString(Qt::ISODate).toStdString();
        ASSERT_EQ(ref != reference.end(), ours != shown.end()) << where;
        if (ours == shown.end())
            continue;
        double nearest = 24.0;
        for (const double h : ref->second)
            nearest = std::min(nearest, std::fabs(h - ours->second));
        EXPECT_LT(nearest, OneMinuteInHours) << where << " at " << ours->second;
    }
}

} // namespace

TEST(LocalClock, SunriseAndMoonriseOfAYearAgreeWithPyEphemOnTheZonesClock)
{
    for (const Place& p : YearPlaces) {
        Astronomy engine = LocalClockEngine(p);
        const DayEvents reference = ReferenceEvents(p);
        for (QDate d(2025, 1, 1); d.year() == 2025; d = d.addDays(1))
            ExpectDayAgrees(engine, reference, d, {"sunrise", "moonrise"}, p.Name);
    }
}

// Every day of platform/data/change_days.txt shows each event of the Sun and the Moon once.
TEST(LocalClock, ChangeDaysShowEveryEventOnceAndRight)
{
    QFile file(QStringLiteral(QUILLMERE_TESTDATA "/change_days.txt"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Text));
    int days = 0;
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n')) {
        const Place& p = line.startsWith(QLatin1String(NewYork.Name)) ? NewYork : Sydney;
        if (line.startsWith('#') || !line.contains('|'))
            continue;
        Astronomy engine = LocalClockEngine(p);
        const DayEvents reference = ReferenceEvents(p);
        for (const QString& date : line.section('|', 1).split(' ')) {
            ExpectDayAgrees(
                engine, reference, QDate::fromString(date, Qt::ISODate),
                {"sunrise", "suntransit", "sunset", "moonrise", "moontransit", "moonset"}, p.Name);
            ++days;
        }
    }
    EXPECT_EQ(days, 19);
}

// The month grid's daylight-saving captions stand on the days the zone's clocks change.
TEST(LocalClock, DaylightSavingCaptionsOnTheZonesChangeDays)
{
    const std::string starts = " Daylight Saving's Time Starts ";
    const std::string ends = " Daylight Saving's Time Ends ";
    struct Case {
        Place P;
        QDate Start, End; // invalid: none
    };
    const Case cases[] = {
        {NewYork, QDate(2025, 3, 9), QDate(2025, 11, 2)},
        {YearPlaces[1], QDate(2025, 3, 30), QDate(2025, 10, 26)},
        {Sydney, QDate(2025, 10, 5), QDate(2025, 4, 6)},
        {YearPlaces[3], QDate(), QDate()},
    };
    for (const Case& c : cases) {
        Astronomy engine = LocalClockEngine(c.P);
        Calendar cal;
        cal.CurYear = 2025;
        cal.CurMonth = 1;
        cal.SetYearTables(engine, c.P.Latitude < 0 ? -1 : 0);
        for (QDate d(2025, 1, 1); d.year() == 2025; d = d.addDays(1)) {
            const std::string& text = cal.YearDays[std::size_t(d.dayOfYear())].Text;
            EXPECT_EQ(text.find(starts) != std::string::npos, d == c.Start)
                << c.P.Zone << " " << d.toString().toStdString();
            EXPECT_EQ(text.find(ends) != std::string::npos, d == c.End)
                << c.P.Zone << " " << d.toString().toStdString();
        }
    }
}
