#include "astro/timebase.h"
#include "cli/common/forecastrun.h"
#include "cli/common/formats.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>

namespace {

ForecastPlace Alexandria(double dstOffsetDays = 0.0)
{
    ForecastPlace p;
    p.Longitude = 92.42;
    p.Latitude = 31.25;
    p.TimeZone = 6;
    p.DstOffsetDays = dstOffsetDays;
    return p;
}

// The row carries the engine's values for the day and the year day table's marks.
TEST(ForecastRun, DayRowFromTheEngineAndTheYearTable)
{
    ForecastRun run(Alexandria());
    const DayRow r = run.Day(2024, 3, 31); // Easter
    run.Engine.ComputeSunDay(CivilToJd(2024, 3, 31));
    EXPECT_DOUBLE_EQ(*r.Sunrise.Hours, run.Engine.Forecast.SunEvents.Horizon.RiseTime);
    EXPECT_DOUBLE_EQ(*r.AstronomicalDusk.Hours, run.Engine.Forecast.SunEvents.Astronomical.SetTime);
    EXPECT_TRUE(r.Holiday);
    EXPECT_EQ(r.Text, " Easter Sunday ");
    EXPECT_EQ(r.Rating, run.Cal.YearDays[91].Rating);
    EXPECT_GT(*r.Sunset.Hours, *r.Sunrise.Hours);
    EXPECT_NEAR(*r.DayLength, *r.Sunset.Hours - *r.Sunrise.Hours, 1e-12);
    EXPECT_NEAR(r.UtcOffsetHours, 6.0, 1e-12);
    // 25 March 2024 is a full moon: rating 4, phase 3, nearly all lit.
    const DayRow full = run.Day(2024, 3, 25);
    EXPECT_EQ(full.Phase, 3);
    EXPECT_EQ(full.Rating, 4);
    EXPECT_GE(full.IllumPercent, 98);
}

// 1 February 2024 at Alexandria has no moonrise (the Moon rose just before midnight): the
// field is empty, the transit and set are there; minors follow the same rule.
TEST(ForecastRun, MissingEventsAreEmpty)
{
    ForecastRun run(Alexandria());
    const DayRow r = run.Day(2024, 2, 1);
    EXPECT_FALSE(r.Moonrise.Hours);
    EXPECT_EQ(r.Moonrise.Status, EventStatus::None);
    ASSERT_TRUE(r.MoonTransit.Hours);
    EXPECT_TRUE(r.Moonset.Hours);
    EXPECT_NEAR(*r.MoonTransit.Hours, 4.0 + 57.0 / 60.0, 2.0 / 60.0);
    EXPECT_EQ(r.Minor1.Hours.has_value(), r.Minor1Text != "*******");
    EXPECT_EQ(r.Minor2.Hours.has_value(), r.Minor2Text != "*******");
}

// Daylight saving moves every clock time one hour later and the UTC offset one hour less.
TEST(ForecastRun, DaylightSavingShiftsTheClock)
{
    ForecastRun standard(Alexandria()), summer(Alexandria(-1.0 / 24.0));
    const DayRow a = standard.Day(2024, 7, 10), b = summer.Day(2024, 7, 10);
    EXPECT_NEAR(*b.Sunrise.Hours - *a.Sunrise.Hours, 1.0, 1e-9);
    EXPECT_NEAR(b.UtcOffsetHours, 5.0, 1e-12);
}

// The events of a year in time order, each kind at its expected count.
TEST(ForecastRun, EventsOfTheYearInOrder)
{
    ForecastRun run(Alexandria());
    const auto events = run.Events(2024);
    int newMoons = 0, equinoxes = 0;
    for (std::size_t i = 0; i < events.size(); ++i) {
        if (i > 0) {
            EXPECT_LE(events[i - 1].JD, events[i].JD);
        }
        newMoons += events[i].Type == "new_moon";
        equinoxes += events[i].Type == "march_equinox" || events[i].Type == "september_equinox";
    }
    EXPECT_EQ(newMoons, 13);
    EXPECT_EQ(equinoxes, 2);
    // The apogee of 1 January 2024, 15:28 UT, is 09:28 on the year's first day in zone 6.
    EXPECT_EQ(events.front().Type, "apogee");
    EXPECT_EQ(events.front().Day, 1);
    const std::string text = EventsAsText(2024, events, "Alexandria");
    EXPECT_NE(text.find("2024-03-19 21:06  Spring Equinox"), std::string::npos) << text;
}

} // namespace

namespace {
// Walking consecutive days reuses the positions at 0h of neighbouring days; every value must
// equal a fresh engine's to 1e-9 of an hour, including days without a transit of their own.
TEST(ForecastRun, ReusedPositionsGiveTheSameForecast)
{
    ForecastRun walked(Alexandria());
    for (int d = 1; d <= 60; ++d) {
        const int month = d <= 31 ? 1 : 2, day = d <= 31 ? d : d - 31;
        const DayRow a = walked.Day(2024, month, day);
        ForecastRun fresh(Alexandria());
        const DayRow b = fresh.Day(2024, month, day);
        const auto hours = [](const DayEvent& e) { return e.Hours.value_or(-1); };
        for (const auto& [x, y] : {std::pair{hours(a.Sunrise), hours(b.Sunrise)},
                                   {hours(a.AstronomicalDusk), hours(b.AstronomicalDusk)},
                                   {hours(a.Major1), hours(b.Major1)},
                                   {hours(a.Major2), hours(b.Major2)},
                                   {hours(a.Moonset), hours(b.Moonset)},
                                   {hours(a.Moonrise), hours(b.Moonrise)},
                                   {a.MoonAzimuth, b.MoonAzimuth}})
            EXPECT_NEAR(x, y, 1e-9) << month << "/" << day;
        EXPECT_EQ(a.Major1Text, b.Major1Text);
    }
}
} // namespace

namespace {
ForecastPlace Place(double lonWest, double latNorth, int zone, double dstOffsetDays = 0.0)
{
    ForecastPlace p;
    p.Longitude = lonWest;
    p.Latitude = latNorth;
    p.TimeZone = zone;
    p.DstOffsetDays = dstOffsetDays;
    return p;
}

// The Sun's lowest altitude at the solstice is -(90 - latitude - 23.44) degrees: at 70 N it
// stays above every altitude in June and below the horizon in December, still above -6; at
// Oslo (59.9 N) in June it reaches -6.65, so civil twilight happens and nautical does not.
TEST(ForecastRun, EventsThatDoNotHappenSayWhy)
{
    ForecastRun north(Place(-20.0, 70.0, -1));
    const DayRow june = north.Day(2024, 6, 21);
    for (const DayEvent* e : {&june.Sunrise, &june.Sunset, &june.CivilDawn, &june.NauticalDusk,
                              &june.AstronomicalDawn}) {
        EXPECT_FALSE(e->Hours);
        EXPECT_EQ(e->Status, EventStatus::Above);
    }
    EXPECT_EQ(june.DayLength, 24.0);
    EXPECT_TRUE(june.SunTransit.Hours);
    const DayRow december = north.Day(2024, 12, 21);
    EXPECT_EQ(december.Sunrise.Status, EventStatus::Below);
    EXPECT_EQ(december.Sunset.Status, EventStatus::Below);
    EXPECT_EQ(december.DayLength, 0.0);
    EXPECT_TRUE(december.CivilDawn.Hours);
    EXPECT_TRUE(december.CivilDusk.Hours);

    ForecastRun oslo(Place(-10.75, 59.91, -1));
    const DayRow midsummer = oslo.Day(2024, 6, 21);
    EXPECT_TRUE(midsummer.CivilDawn.Hours);
    EXPECT_TRUE(midsummer.CivilDusk.Hours);
    for (const DayEvent* e : {&midsummer.NauticalDawn, &midsummer.NauticalDusk,
                              &midsummer.AstronomicalDawn, &midsummer.AstronomicalDusk})
        EXPECT_EQ(e->Status, EventStatus::Above);
    EXPECT_NEAR(*midsummer.DayLength, 18.0 + 50.0 / 60.0, 5.0 / 60.0); // almanac: 18 h 50 min
}

// With daylight saving the twilights are those of the clock's own day: Oslo (zone -1) on
// summer time keeps the clock of zone -2 on standard time, so every event must be the same,
// also the dusks that cross midnight there in summer. Where the Sun grazes a twilight's
// altitude the day is searched on its altitude, sampled from the day's start: the two clocks
// then agree to a few milliseconds, not to the last bit.
TEST(ForecastRun, DaylightSavingTwilightsBelongToTheClocksDay)
{
    ForecastRun summer(Place(-10.75, 59.91, -1, -1.0 / 24.0)), east(Place(-10.75, 59.91, -2));
    int afterMidnight = 0;
    for (int d = 0; d < 120; ++d) {
        const CivilDate day = JdToCivil(CivilToJd(2024, 4, 20) + d);
        const DayRow a = summer.Day(day.Year, day.Month, day.Day);
        const DayRow b = east.Day(day.Year, day.Month, day.Day);
        for (const auto member : {&DayRow::CivilDawn, &DayRow::CivilDusk, &DayRow::NauticalDawn,
                                  &DayRow::NauticalDusk, &DayRow::AstronomicalDusk}) {
            EXPECT_EQ((a.*member).Status, (b.*member).Status) << day.Month << "/" << day.Day;
            EXPECT_NEAR((a.*member).Hours.value_or(-1), (b.*member).Hours.value_or(-1), 1e-6)
                << day.Month << "/" << day.Day;
            afterMidnight += (a.*member).Hours.value_or(24) < 1.0;
        }
    }
    EXPECT_GT(afterMidnight, 10);
}

// One major per real transit: the upper transits come every 24 h 50 min and the lower ones
// half a lunar day later, so over a year no two majors lie closer than ten hours, and each
// kind happens on about 366 x 24 / 24.84 days.
TEST(ForecastRun, MajorsOnlyForRealTransits)
{
    ForecastRun la(Place(118.25, 34.05, 8));
    std::vector<double> majors; // universal time, hours since 2024
    int upper = 0, lower = 0;
    for (int d = 0; d < 366; ++d) {
        const CivilDate c = JdToCivil(CivilToJd(2024, 1, 1) + d);
        const DayRow r = la.Day(c.Year, c.Month, c.Day);
        EXPECT_EQ(r.Major1.Hours.has_value(), r.Major1Text.front() != '*') << d;
        for (const DayEvent* e : {&r.Major1, &r.Major2})
            if (e->Hours)
                majors.push_back(24.0 * d + *e->Hours + r.UtcOffsetHours);
        upper += r.Major1.Hours.has_value();
        lower += r.Major2.Hours.has_value();
    }
    std::sort(majors.begin(), majors.end());
    for (std::size_t i = 1; i < majors.size(); ++i)
        EXPECT_GT(majors[i] - majors[i - 1], 10.0) << majors[i] / 24.0;
    EXPECT_NEAR(upper, 353.6, 1.0);
    EXPECT_NEAR(lower, 353.6, 1.0);
}

// USNO: March equinox 2024-03-20 03:06 UT; new moon 2014-01-01 11:14 UT. In Alexandria's
// zone (6) the equinox is 21:06 standard time and 22:06 daylight time on 19 March.
TEST(ForecastRun, YearEventsInUniversalAndLocalTime)
{
    for (const double dst : {0.0, -1.0 / 24.0}) {
        ForecastRun run(Alexandria(dst));
        const auto events = run.Events(2024);
        const auto equinox = std::find_if(events.begin(), events.end(), [](const EventRow& e) {
            return e.Type == "march_equinox";
        });
        ASSERT_NE(equinox, events.end());
        EXPECT_NEAR(equinox->JD, CivilToJd(2024, 3, 20) + (3.0 + 6.0 / 60.0) / 24.0, 1.0 / 1440.0);
        const std::string text = EventsAsText(2024, events, "Alexandria");
        const std::string expected =
            dst == 0.0 ? "2024-03-19 21:06  Spring Equinox" : "2024-03-19 22:06  Spring Equinox";
        EXPECT_NE(text.find(expected), std::string::npos) << text;
        EXPECT_EQ(equinox->Day, 19);
    }
    ForecastRun run(Alexandria());
    const auto y2013 = run.Events(2013), y2014 = run.Events(2014);
    EXPECT_EQ(y2013.back().Year, 2013);
    EXPECT_EQ(y2014.front().Type, "new_moon");
    EXPECT_EQ(y2014.front().Day, 1);
    EXPECT_NEAR(y2014.front().JD, CivilToJd(2014, 1, 1) + (11.0 + 14.0 / 60.0) / 24.0,
                1.0 / 1440.0);
}

// Every year from 1900 to 2500 lists only its own events, and consecutive events of a kind
// lie about one cycle apart, across the new year too: none is lost or listed twice.
TEST(ForecastRun, YearsTogetherMissNoEvent)
{
    ForecastRun run(Place(-150.0, 0.0, -10));
    std::map<std::string, double> last;
    const std::map<std::string, double> cycle = {{"new_moon", 29.53},
                                                 {"first_quarter", 29.53},
                                                 {"full_moon", 29.53},
                                                 {"last_quarter", 29.53},
                                                 {"perigee", 27.55},
                                                 {"apogee", 27.55},
                                                 {"max_north_declination", 27.32},
                                                 {"max_south_declination", 27.32},
                                                 {"march_equinox", 365.24},
                                                 {"june_solstice", 365.24},
                                                 {"september_equinox", 365.24},
                                                 {"december_solstice", 365.24}};
    for (int y = 1900; y <= 2500; ++y)
        for (const EventRow& e : run.Events(y)) {
            ASSERT_EQ(e.Year, y) << e.Type;
            if (last.count(e.Type)) {
                const double gap = (e.JD - last[e.Type]) / cycle.at(e.Type);
                ASSERT_GT(gap, 0.5) << e.Type << " " << y;
                ASSERT_LT(gap, 1.5) << e.Type << " " << y;
            }
            last[e.Type] = e.JD;
        }
}
} // namespace
