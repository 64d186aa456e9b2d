// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/astronomy.h"
#include "astro/timebase.h"
#include "calendar/calendar.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <set>
#include <string>

namespace {

Calendar YearOf(Astronomy& engine, int year, std::int16_t south = 0)
{
    Calendar cal;
    cal.CurYear = std::int16_t(year);
    cal.CurMonth = 1;
    cal.SetYearTables(engine, south);
    return cal;
}

// The local day of an instant to the minute as shown (Julian day at 0h), by plain arithmetic.
double ShownDay(double t) { return std::floor(std::round(t * 1440.0) / 1440.0 + 0.5) - 0.5; }

// The events of each kind (phases 1..4, apsides 5..6, declinations 7..8) by shown day.
using Found = std::array<std::multiset<double>, 9>;

// The table's events; each must stand on the local day of its instant as shown.
Found TableOf(const Calendar& cal)
{
    Found f;
    for (int d = 0; d < int(cal.YearDays.size()); ++d) {
        const DayMarks& r = cal.YearDays[std::size_t(d)];
        for (const auto& [kind, t] : {std::pair{r.Phase > 0 ? r.Phase : -1, r.PhaseJD},
                                      {r.Perigee > 0 ? r.Perigee + 4 : -1, r.PerigeeJD},
                                      {r.Declination > 0 ? r.Declination + 6 : -1, r.DeclinationJD},
                                      {r.Season > 0 ? 0 : -1, r.SeasonJD}})
            if (kind >= 0) {
                EXPECT_EQ(ShownDay(t), cal.YearStartJD + d - 1) << cal.CurYear << " day " << d;
                f[std::size_t(kind)].insert(ShownDay(t));
            }
    }
    return f;
}

// Every year from 1900 to 2500 holds 12 or 13 of each phase and 13 or 14 perigees, apogees
// and greatest declinations, in Alexandria's zone with daylight saving; every event, the
// seasons too, on the day its instant shows.
TEST(YearEvents, EveryEventOfEveryYearFrom1900To2500)
{
    Astronomy engine;
    engine.Site.ZoneDays = 6.0 / 24.0;
    engine.Site.DstOffsetDays = -1.0 / 24.0;
    for (int year = 1900; year <= 2500; ++year) {
        const Found got = TableOf(YearOf(engine, year));
        for (std::size_t kind = 1; kind < got.size(); ++kind) {
            const std::size_t fewest = kind <= 4 ? 12 : 13;
            ASSERT_GE(got[kind].size(), fewest) << year << " kind " << kind;
            ASSERT_LE(got[kind].size(), fewest + 1) << year << " kind " << kind;
        }
    }
}

// 2024 at zone 0: the captions, codes and times of the equinox, a full moon and the extremes.
TEST(YearEvents, CaptionsAndCodesOf2024)
{
    Astronomy engine;
    const Calendar cal = YearOf(engine, 2024);
    const DayMarks& equinox = cal.YearDays[std::size_t(DayOfYearOf(2024, 3, 20))];
    EXPECT_EQ(equinox.Season, 1);
    EXPECT_NE(equinox.Text.find(" Spring Eqinox "), std::string::npos);
    // USNO: 20 March 2024, 03:06 UT.
    EXPECT_NEAR(equinox.SeasonJD, CivilToJd(2024, 3, 20) + (3.0 + 6.0 / 60.0) / 24.0, 0.5 / 1440.0);
    const DayMarks& solstice = cal.YearDays[std::size_t(DayOfYearOf(2024, 12, 21))];
    EXPECT_EQ(solstice.Season, 4);
    EXPECT_NE(solstice.Text.find(" Winter Solstice "), std::string::npos);
    const DayMarks& full = cal.YearDays[std::size_t(DayOfYearOf(2024, 1, 25))];
    EXPECT_EQ(full.Phase, 3);
    EXPECT_NEAR(full.PhaseJD, 2460335.24580, 2.0 / 1440.0);
    EXPECT_EQ(full.MoonAge, 14);
    EXPECT_EQ(full.Rating, 4);
    for (const DayMarks& r : cal.YearDays)
        for (const auto& [marked, caption] :
             {std::pair{r.Perigee == 1, " Moon at Perigee "},
              {r.Perigee == 2, " Moon at Apogee "},
              {r.Declination == 1, " Moon at Max North Declination "},
              {r.Declination == 2, " Moon at Max South Declination "}})
            EXPECT_EQ(r.Text.find(caption) != std::string::npos, marked) << r.Text;
}

// Sydney (zone -10), 2029: the full moon of 1 January at 02:48 local time (31 December 2028,
// 16:48 UT, PyEphem) is that day's, and rates 1-3 January Best, Best, V.Good.
TEST(YearEvents, FullMoonInTheFirstHoursOfTheYear)
{
    Astronomy engine;
    engine.Site.SetPlace(-151.21, -33.87, -10);
    const Calendar cal = YearOf(engine, 2029, -1);
    const DayMarks& first = cal.YearDays[1];
    EXPECT_EQ(first.Phase, 3);
    EXPECT_NEAR(first.PhaseJD, CivilToJd(2029, 1, 1) + (2.0 + 48.0 / 60.0) / 24.0, 1.0 / 1440.0);
    EXPECT_EQ(first.Rating, 4);
    EXPECT_EQ(cal.YearDays[2].Rating, 4);
    EXPECT_EQ(cal.YearDays[3].Rating, 3);
}

} // namespace
