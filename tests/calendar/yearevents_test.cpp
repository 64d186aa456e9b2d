// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/astronomy.h"
#include "astro/lunarevents.h"
#include "astro/timebase.h"
#include "calendar/calendar.h"

#include <gtest/gtest.h>

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
// The table holds the events of the year's days and of the next year's first day.
bool Writable(const Calendar& cal, double t)
{
    return ShownDay(t) >= cal.YearStartJD && ShownDay(t) < cal.YearStartJD + cal.YearSlots;
}

struct Found {
    std::multiset<double> Phases[5], Apsides[3], Declinations[3];
};

Found TableOf(const Calendar& cal)
{
    Found f;
    for (int d = 0; d < int(cal.YearDays.size()); ++d) {
        const DayMarks& r = cal.YearDays[std::size_t(d)];
        if (r.Phase > 0)
            f.Phases[r.Phase].insert(ShownDay(r.PhaseJD));
        if (r.Perigee > 0)
            f.Apsides[r.Perigee].insert(ShownDay(r.PerigeeJD));
        if (r.Declination > 0)
            f.Declinations[r.Declination].insert(ShownDay(r.DeclinationJD));
    }
    return f;
}

// What the engine's routines give for a span of cycles well around the year.
Found Expected(Astronomy& engine, const Calendar& cal)
{
    Found f;
    const double from = cal.YearStartJD - 100.0, to = cal.YearEndJD + 100.0;
    for (double k = FirstPhaseCycle(from); k < FirstPhaseCycle(to); ++k) {
        engine.MoonPhases(k);
        for (std::size_t i = 0; i < 4; ++i)
            if (Writable(cal, engine.PhaseTimes[i]))
                f.Phases[i + 1].insert(ShownDay(engine.PhaseTimes[i]));
    }
    for (double k = FirstApsisCycle(from); k < FirstApsisCycle(to); ++k) {
        engine.PerigeeApogee(k);
        for (std::size_t i = 0; i < 2; ++i)
            if (Writable(cal, engine.PerigeeTimes[i]))
                f.Apsides[i + 1].insert(ShownDay(engine.PerigeeTimes[i]));
    }
    for (double k = FirstDeclinationCycle(from); k < FirstDeclinationCycle(to); ++k) {
        engine.MaxDeclinations(k);
        for (std::size_t i = 0; i < 2; ++i)
            if (Writable(cal, engine.DeclinationTimes[i]))
                f.Declinations[i + 1].insert(ShownDay(engine.DeclinationTimes[i]));
    }
    return f;
}

// Every year from 1900 to 2500 holds every phase, perigee, apogee and greatest declination of
// the year on its local day, in Alexandria's zone with daylight saving.
TEST(YearEvents, EveryEventOfEveryYearFrom1900To2500)
{
    Astronomy engine;
    engine.Site.ZoneDays = 6.0 / 24.0;
    engine.Site.DstOffsetDays = -1.0 / 24.0;
    for (int year = 1900; year <= 2500; ++year) {
        const Calendar cal = YearOf(engine, year);
        const Found got = TableOf(cal), want = Expected(engine, cal);
        for (int p = 1; p <= 4; ++p) {
            ASSERT_EQ(got.Phases[p], want.Phases[p]) << year << " phase " << p;
            ASSERT_GE(got.Phases[p].size(), 12u) << year << " phase " << p;
            ASSERT_LE(got.Phases[p].size(), 13u) << year << " phase " << p;
        }
        for (int i = 1; i <= 2; ++i) {
            ASSERT_EQ(got.Apsides[i], want.Apsides[i]) << year << " apsis " << i;
            ASSERT_EQ(got.Declinations[i], want.Declinations[i]) << year << " extreme " << i;
            ASSERT_GE(got.Apsides[i].size(), 13u) << year << " apsis " << i;
            ASSERT_LE(got.Apsides[i].size(), 14u) << year << " apsis " << i;
            ASSERT_GE(got.Declinations[i].size(), 13u) << year << " extreme " << i;
            ASSERT_LE(got.Declinations[i].size(), 14u) << year << " extreme " << i;
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
    int captions = 0;
    for (const DayMarks& r : cal.YearDays) {
        if (r.Perigee == 1) {
            EXPECT_EQ(r.Text.find(" Moon at Perigee "), r.Text.size() - 17);
        }
        if (r.Perigee == 2) {
            EXPECT_NE(r.Text.find(" Moon at Apogee "), std::string::npos);
        }
        if (r.Declination == 1) {
            EXPECT_NE(r.Text.find(" Moon at Max North Declination "), std::string::npos);
        }
        if (r.Declination == 2) {
            EXPECT_NE(r.Text.find(" Moon at Max South Declination "), std::string::npos);
        }
        captions += (r.Perigee > 0) + (r.Declination > 0) + (r.Season > 0);
    }
    EXPECT_GE(captions, 4 + 26 + 26);
}

// Two events on one day stand declination, season, perigee/apogee; holidays in front of all.
// 2024: 20 March holds the equinox only; search all years of a span for a shared day instead.
TEST(YearEvents, CaptionOrderOnASharedDay)
{
    Astronomy engine;
    int checked = 0;
    for (int year = 2000; year <= 2060 && checked < 3; ++year) {
        const Calendar cal = YearOf(engine, year);
        for (const DayMarks& r : cal.YearDays) {
            if (r.Declination > 0 && r.Perigee > 0 && !r.Holiday) {
                const auto decl = r.Text.find(" Moon at Max ");
                const auto apsis =
                    r.Text.find(r.Perigee == 1 ? " Moon at Perigee " : " Moon at Apogee ");
                EXPECT_EQ(decl, 0u) << year << r.Text;
                EXPECT_GT(apsis, decl) << year << r.Text;
                ++checked;
            }
            if (r.Holiday && r.Season > 0) {
                EXPECT_LT(r.Text.find(" Daylight"), r.Text.find("Eq")) << r.Text;
            }
        }
    }
    EXPECT_GE(checked, 3);
}

// Every event is marked on the local day of its instant as shown, the first hours of
// 1 January and the last of 31 December included; nothing is marked before the year.
TEST(YearEvents, EdgesOfTheYear)
{
    Astronomy engine;
    for (int year = 1990; year <= 2030; ++year) {
        const Calendar cal = YearOf(engine, year);
        for (int d = 0; d < int(cal.YearDays.size()); ++d) {
            const DayMarks& r = cal.YearDays[std::size_t(d)];
            const double day = cal.YearStartJD + d - 1;
            for (const auto& [code, t] : {std::pair{r.Phase, r.PhaseJD},
                                          {r.Perigee, r.PerigeeJD},
                                          {r.Declination, r.DeclinationJD},
                                          {r.Season, r.SeasonJD}})
                if (code > 0) {
                    EXPECT_EQ(ShownDay(t), day) << year << " day " << d;
                }
        }
    }
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

TEST(YearEvents, SouthernHemisphereRatesTheSouthernExtreme)
{
    Astronomy engine;
    const Calendar north = YearOf(engine, 2024, 0), south = YearOf(engine, 2024, -1);
    int compared = 0;
    for (std::size_t d = 1; d <= std::size_t(north.YearSlots); ++d) {
        const DayMarks& r = north.YearDays[d];
        if (r.Declination == 1 && south.YearDays[d].Rating < 4 && r.Perigee == 0 &&
            north.YearDays[d - 1].Perigee == 0 && north.YearDays[d + 1].Perigee == 0) {
            EXPECT_EQ(r.Rating, south.YearDays[d].Rating + 1) << d;
            ++compared;
        }
    }
    EXPECT_GE(compared, 3);
}

} // namespace
