#include "astro/timebase.h"
#include "cli/forecastrun.h"
#include "cli/formats.h"

#include <gtest/gtest.h>

#include <cmath>

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
    EXPECT_DOUBLE_EQ(r.Sunrise, run.Engine.Forecast.SunEvents(0, 0));
    EXPECT_DOUBLE_EQ(r.AstronomicalDusk, run.Engine.Forecast.SunEvents(3, 2));
    EXPECT_TRUE(r.Holiday);
    EXPECT_EQ(r.Text, " Easter Sunday ");
    EXPECT_EQ(r.Rating, run.Cal.YearDays[91].Rating);
    EXPECT_GT(r.Sunset, r.Sunrise);
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
    EXPECT_FALSE(r.Moonrise);
    ASSERT_TRUE(r.MoonTransit);
    EXPECT_TRUE(r.Moonset);
    EXPECT_NEAR(*r.MoonTransit, 4.0 + 57.0 / 60.0, 2.0 / 60.0);
    EXPECT_EQ(r.Minor1.has_value(), r.Minor1Text != "*******");
    EXPECT_EQ(r.Minor2.has_value(), r.Minor2Text != "*******");
}

// Daylight saving moves every clock time one hour later and the UTC offset one hour less.
TEST(ForecastRun, DaylightSavingShiftsTheClock)
{
    ForecastRun standard(Alexandria()), summer(Alexandria(-1.0 / 24.0));
    const DayRow a = standard.Day(2024, 7, 10), b = summer.Day(2024, 7, 10);
    EXPECT_NEAR(b.Sunrise - a.Sunrise, 1.0, 1e-9);
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
            EXPECT_LE(events[i - 1].LocalJD, events[i].LocalJD);
        }
        newMoons += events[i].Type == "new_moon";
        equinoxes += events[i].Type == "march_equinox" || events[i].Type == "september_equinox";
    }
    EXPECT_EQ(newMoons, 13);
    EXPECT_EQ(equinoxes, 2);
    EXPECT_EQ(events.front().Type, "last_quarter"); // 3 January 2024
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
        for (const auto& [x, y] : {std::pair{a.Sunrise, b.Sunrise},
                                   {a.AstronomicalDusk, b.AstronomicalDusk},
                                   {a.Major1, b.Major1},
                                   {a.Major2, b.Major2},
                                   {a.Moonset.value_or(-1), b.Moonset.value_or(-1)},
                                   {a.Moonrise.value_or(-1), b.Moonrise.value_or(-1)},
                                   {a.MoonAzimuth, b.MoonAzimuth}})
            EXPECT_NEAR(x, y, 1e-9) << month << "/" << day;
        EXPECT_EQ(a.Major1Text, b.Major1Text);
    }
}
} // namespace
