// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/timebase.h"
#include "cli/common/forecastrun.h"
#include "cli/common/formats.h"
#include "viewrules/daydetails.h"

#include <gtest/gtest.h>

#include <algorithm>

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

// The Sun's lowest altitude at the solstice is -(90 - latitude - 23.44) degrees and its
// highest 90 - latitude + 23.44: at 70 N it stays above every altitude in June and below the
// horizon in December, still above -6; at Oslo (59.9 N) in June it reaches -6.65, so civil
// twilight happens and nautical does not (almanac: 18 h 50 min of daylight). Hours of daylight
// count every stretch of the day with the Sun up, from PyEphem 4.1.4's altitude sampled each
// minute at 70 N 20 E: on 15 May 2024 the Sun rises at 00:14, sets at 23:25, rises at 23:46.
TEST(ForecastRun, PolarDaysSayWhyEventsDoNotHappenAndCountEveryStretchOfDaylight)
{
    // Sunrise, sunset and the three twilights' dawn and dusk: 'o' when the day has it, else
    // 'A' or 'B' for the Sun above or below all day.
    const auto said = [](const DayRow& r) {
        std::string s;
        for (const DayEvent* e :
             {&r.Sunrise, &r.Sunset, &r.CivilDawn, &r.CivilDusk, &r.NauticalDawn, &r.NauticalDusk,
              &r.AstronomicalDawn, &r.AstronomicalDusk})
            s += e->Hours                          ? 'o'
                 : e->Status == EventStatus::Above ? 'A'
                 : e->Status == EventStatus::Below ? 'B'
                                                   : '?';
        return s;
    };
    ForecastRun north(Place(-20.0, 70.0, -1)), oslo(Place(-10.75, 59.91, -1));
    const DayRow june = north.Day(2024, 6, 21), december = north.Day(2024, 12, 21),
                 midsummer = oslo.Day(2024, 6, 21);
    EXPECT_EQ(said(june) + said(december) + said(midsummer), "AAAAAAAA"
                                                             "BBoooooo"
                                                             "ooooAAAA");
    EXPECT_TRUE(june.SunTransit.Hours);
    EXPECT_EQ(june.DayLength, 24.0);
    EXPECT_EQ(december.DayLength, 0.0);
    EXPECT_NEAR(*midsummer.DayLength, 18.0 + 50.0 / 60.0, 5.0 / 60.0);
    for (const auto& [day, hours] : {std::pair{9, 20.80}, {15, 23.42}})
        EXPECT_NEAR(*north.Day(2024, 5, day).DayLength, hours, 2.0 / 60.0) << day;
}

// USNO: March equinox 2024-03-20 03:06 UT; new moon 2014-01-01 11:14 UT. In Alexandria's
// zone (6) the equinox is 21:06 standard time and 22:06 daylight time on 19 March, in the
// events list and in the detail window alike.
TEST(ForecastRun, YearEventsInUniversalAndLocalTime)
{
    for (const auto& [dst, clock] : {std::pair{0.0, "21:06"}, {-1.0 / 24.0, "22:06"}}) {
        ForecastRun run(Place(92.42, 31.25, 6, dst));
        const auto events = run.Events(2024);
        const auto equinox = std::find_if(events.begin(), events.end(), [](const EventRow& e) {
            return e.Type == "march_equinox";
        });
        ASSERT_NE(equinox, events.end());
        EXPECT_NEAR(equinox->JD, CivilToJd(2024, 3, 20) + (3.0 + 6.0 / 60.0) / 24.0, 1.0 / 1440.0);
        const std::string text = EventsAsText(2024, events, "Alexandria");
        EXPECT_NE(text.find(std::string("2024-03-19 ") + clock + "  Spring Equinox"), text.npos);
    }
    ForecastRun alexandria(Place(92.42, 31.25, 6, -1.0 / 24.0));
    alexandria.Day(2024, 3, 19);
    const DetailLines lines =
        DoDetails(alexandria.Engine, alexandria.Cal, CivilToJd(2024, 3, 19), true);
    EXPECT_TRUE(std::any_of(lines.begin(), lines.end(),
                            [](const auto& l) { return l.second == "Spring Equinox  10:06 PM"; }));

    const auto y2014 = alexandria.Events(2014);
    EXPECT_EQ(alexandria.Events(2013).back().Year, 2013);
    EXPECT_EQ(y2014.front().Type, "new_moon");
    EXPECT_NEAR(y2014.front().JD, CivilToJd(2014, 1, 1) + (11.0 + 14.0 / 60.0) / 24.0,
                1.0 / 1440.0);
}

// Tromso, 20 June 2025 (zone 1, summer time): the Moon grazes the horizon and rises twice in
// the day. PyEphem's sampled altitude (tools/riseset_sampling_check.py's crossings) has it rise
// at 00:21.6 and 23:48.4 and set at 16:18.4. The row carries the second rise in a field of its
// own, after the old ones, and the text table notes it.
TEST(ForecastRun, SecondMoonriseOfAGrazingDay)
{
    ForecastRun run(Place(-18.96, 69.65, -1, -1.0 / 24.0));
    const DayRow r = run.Day(2025, 6, 20);
    for (const auto& [event, hours] :
         {std::pair{r.Moonrise, 0.3604}, {r.Moonrise2, 23.8075}, {r.Moonset, 16.3066}}) {
        ASSERT_TRUE(event.Hours.has_value()) << hours;
        EXPECT_NEAR(*event.Hours * 60.0, hours * 60.0, 1.0);
    }
    EXPECT_FALSE(r.Moonset2.Hours.has_value());
    EXPECT_NE(
        AllDays(CsvDays(), {r}).find(",moonrise2,moonrise2_status,moonset2,moonset2_status\n"),
        std::string::npos);
    EXPECT_NE(AllDays(JsonDays(), {r}).find("\"moonrise2_status\": \"ok\", \"moonset2\": null"),
              std::string::npos);
    EXPECT_NE(AllDays(TextDays("Tromso"), {r}).find("  2nd moonrise 23:48"), std::string::npos);
}
} // namespace
