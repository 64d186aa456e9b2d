// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/astronomy.h"
#include "astro/timebase.h"
#include "calendar/calendar.h"
#include "viewrules/daygraphdata.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

constexpr double Units = TimeLineWidth / 24.0; // per hour

Astronomy At(double lonWest, double latNorth, std::int16_t zone)
{
    Astronomy engine;
    engine.Site.SetPlace(lonWest, latNorth, zone);
    return engine;
}

DayGraphSeries SeriesOf(Astronomy& engine, double jd, const DayMarks& marks = {})
{
    engine.ComputeSunDay(jd);
    engine.ComputeDay(jd);
    return DrawTimes(engine.Forecast, marks, SunAltitudesOfDay(engine, jd));
}

std::vector<GraphBand> BandsNamed(const DayGraphSeries& s, const std::string& name)
{
    std::vector<GraphBand> out;
    std::copy_if(s.Twilights.begin(), s.Twilights.end(), std::back_inserter(out),
                 [&](const GraphBand& b) { return b.Name == name; });
    return out;
}

// A summer day at Alexandria: the six bands meet at sunrise, sunset and the twilights as
// PyEphem 4.1.4 gives them (minutes of the local clock; the Sun's upper limb 34' below the
// horizon, its centre 6, 12 and 18 degrees below, no refraction), daylight between; the tips
// name the part of the day under the pointer.
TEST(DayGraph, SeriesOfASummerDayAgreeWithEphem)
{
    Astronomy engine = At(92.42, 31.25, 6);
    const DayGraphSeries s = SeriesOf(engine, CivilToJd(2024, 6, 20));
    const struct {
        const char* Name;
        double Dawn, Dusk, BrighterDawn, BrighterDusk;
    } kinds[] = {{" Civil Twilight ", 278.0, 1184.9, 306.0, 1156.9},
                 {" Nautical Twilight ", 243.9, 1219.0, 278.0, 1184.9},
                 {" Astronomical Twilight ", 207.1, 1255.8, 243.9, 1219.0}};
    const auto minutes = [](double x) { return x / Units * 60.0; };
    ASSERT_EQ(s.Twilights.size(), 6u);
    for (const auto& k : kinds) {
        const auto bands = BandsNamed(s, k.Name);
        ASSERT_EQ(bands.size(), 2u) << k.Name;
        EXPECT_NEAR(minutes(bands[0].X0), k.Dawn, 1.0) << k.Name;
        EXPECT_NEAR(minutes(bands[0].X1), k.BrighterDawn, 1.0) << k.Name;
        EXPECT_NEAR(minutes(bands[1].X0), k.BrighterDusk, 1.0) << k.Name;
        EXPECT_NEAR(minutes(bands[1].X1), k.Dusk, 1.0) << k.Name;
    }
    ASSERT_EQ(s.Daylight.size(), 1u);
    EXPECT_NEAR(minutes(s.Daylight[0].X0), 306.0, 1.0);
    EXPECT_NEAR(minutes(s.Daylight[0].X1), 1156.9, 1.0);
    EXPECT_EQ(DayPartTip(s, 1.0 * Units, true), " Night ");
    EXPECT_EQ(DayPartTip(s, 5.0 * Units, true), " Civil Twilight 04:38 AM "); // 278.0 minutes
    const std::string day = DayPartTip(s, 12.0 * Units, true);
    EXPECT_EQ(day.substr(0, 9), " Sunrise ");
    EXPECT_NE(day.find(", Sunset "), std::string::npos);
}

// Where the Sun and the Moon stand at the pointer's moment, against PyEphem 4.1.4 (no
// refraction; the Moon as seen from the place, up to a degree lower than from the Earth's
// centre), within half a degree:
// 07:30 AM at Alexandria in standard time, and 9 PM with daylight saving (02:00 UT next day).
TEST(DayGraph, SkyAtThePointerAgreesWithEphem)
{
    const struct {
        double Hour, DstDays, SunAz, SunEl, MoonAz, MoonEl;
    } cases[] = {{7.5, 0.0, 78.233, 28.040, 263.327, -47.123},
                 {21.0, -1.0 / 24.0, 304.300, -8.701, 135.876, 13.834}};
    Astronomy engine = At(92.42, 31.25, 6);
    for (const auto& c : cases) {
        engine.Site.DstOffsetDays = c.DstDays;
        const SkyReadout r = GetPicData(engine, CivilToJd(2024, 6, 20) + c.Hour / 24.0);
        EXPECT_NEAR(r.SunAzimuth, c.SunAz, 0.5) << c.Hour;
        EXPECT_NEAR(r.SunElevation, c.SunEl, 0.5) << c.Hour;
        EXPECT_NEAR(r.MoonAzimuth, c.MoonAz, 0.5) << c.Hour;
        EXPECT_NEAR(r.MoonElevation, c.MoonEl, 0.5) << c.Hour;
    }
}

} // namespace
