// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/astronomy.h"
#include "astro/timebase.h"
#include "calendar/calendar.h"
#include "viewrules/daygraphdata.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>

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

// A summer day at Alexandria: the six bands meet at the forecast's twilight times, in the
// colours of the line, daylight between sunrise and sunset; red bars at the majors, green at
// the minors, white marks at the Moon's rise, transit and set.
TEST(DayGraph, SeriesOfASummerDayFollowTheForecast)
{
    Astronomy engine = At(92.42, 31.25, 6);
    const DayGraphSeries s = SeriesOf(engine, CivilToJd(2024, 6, 20));
    const SunEventTable& e = engine.Forecast.SunEvents;
    const struct {
        const char* Name;
        SunRow Row, Brighter;
        std::uint32_t Colour;
    } kinds[] = {{" Civil Twilight ", SunRow::Civil, SunRow::Horizon, 0xFFC0C0},
                 {" Nautical Twilight ", SunRow::Nautical, SunRow::Civil, 0xFF8080},
                 {" Astronomical Twilight ", SunRow::Astronomical, SunRow::Nautical, 0xFF0000}};
    ASSERT_EQ(s.Twilights.size(), 6u);
    for (const auto& k : kinds) {
        const auto bands = BandsNamed(s, k.Name);
        ASSERT_EQ(bands.size(), 2u) << k.Name;
        // Morning: from this twilight's dawn to the next brighter one's; evening mirrored.
        EXPECT_NEAR(bands[0].X0, e[k.Row].RiseTime * Units, 1e-9);
        EXPECT_NEAR(bands[0].X1, e[k.Brighter].RiseTime * Units, 1e-9);
        EXPECT_NEAR(bands[1].X0, e[k.Brighter].SetTime * Units, 1e-9);
        EXPECT_NEAR(bands[1].X1, e[k.Row].SetTime * Units, 1e-9);
        EXPECT_EQ(bands[0].Color, k.Colour);
        EXPECT_EQ(bands[0].EdgeX, bands[0].X0); // the tip names the dawn ...
        EXPECT_EQ(bands[1].EdgeX, bands[1].X1); // ... and the dusk
    }
    ASSERT_EQ(s.Daylight.size(), 1u);
    EXPECT_NEAR(s.Daylight[0].X0, e.Horizon.RiseTime * Units, 1e-9);
    EXPECT_NEAR(s.Daylight[0].X1, e.Horizon.SetTime * Units, 1e-9);

    const DayForecast& f = engine.Forecast;
    ASSERT_NE(f.Minor1Text, "*******");
    ASSERT_NE(f.Minor2Text, "*******");
    ASSERT_EQ(s.Bars.size(), 4u);
    const double expected[] = {f.Major1, f.Major2, f.Minor1, f.Minor2};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_NEAR(s.Bars[i].X, expected[i] * Units, 1e-9);
        EXPECT_EQ(s.Bars[i].Color, i < 2 ? 0x0000FFu : 0x80FF80u);
    }
    ASSERT_EQ(s.MoonMarks.size(), 3u);
    EXPECT_NEAR(s.MoonMarks[0].X, f.MoonEvents.RiseTime * Units, 1e-9);
    EXPECT_NEAR(s.MoonMarks[1].X, f.MoonEvents.TransitTime * Units, 1e-9);
    EXPECT_NEAR(s.MoonMarks[2].X, f.MoonEvents.SetTime * Units, 1e-9);
    EXPECT_EQ(s.HourTicks.size(), 23u);
    EXPECT_EQ(s.NoonX, 3500.0);

    // The tool tips along the line.
    EXPECT_EQ(DayPartTip(s, 1.0 * Units, true), " Night ");
    EXPECT_EQ(DayPartTip(s, 23.9 * Units, true), " Night ");
    const double dawn = e.Civil.RiseTime;
    const std::string civil = DayPartTip(s, (dawn + e.Horizon.RiseTime) / 2.0 * Units, true);
    EXPECT_EQ(civil, " Civil Twilight " + FormatClock(0, AdjBiasBack(dawn * Units), true) + " ");
    const std::string day = DayPartTip(s, 12.0 * Units, true);
    EXPECT_EQ(day.substr(0, 9), " Sunrise ");
    EXPECT_NE(day.find(", Sunset "), std::string::npos);
}

// The line reads back as clock time with a quarter-minute addend; a place on the line wraps.
TEST(DayGraph, LinePlacesAndClockHours)
{
    EXPECT_DOUBLE_EQ(AdjBiasBack(3500.0), 12.0 + 15.0 / 1440.0);
    EXPECT_DOUBLE_EQ(AdjBiasBack(0.0), 15.0 / 1440.0);
    EXPECT_DOUBLE_EQ(AdjForBias(7000.0 + 1750.0), 1750.0);
    EXPECT_EQ(FormatClock(0, AdjBiasBack(3500.0), true), "12:00 PM");
}

// At 75 degrees north in June the Sun never sets: no twilight bands, daylight all day. At 65
// degrees it sets but stays above -6 degrees: civil twilight fills the night, no darker band.
TEST(DayGraph, PolarDayAndWhiteNight)
{
    Astronomy polar = At(-19.0, 75.0, -1);
    const DayGraphSeries p = SeriesOf(polar, CivilToJd(2024, 6, 21));
    EXPECT_TRUE(p.Twilights.empty());
    ASSERT_EQ(p.Daylight.size(), 1u);
    EXPECT_EQ(p.Daylight[0].X1 - p.Daylight[0].X0, TimeLineWidth);
    EXPECT_EQ(DayPartTip(p, 100.0, true), " Daylight ");

    Astronomy white = At(-25.0, 65.0, -2); // zone chosen so that midnight falls in the night
    const DayGraphSeries w = SeriesOf(white, CivilToJd(2024, 6, 21));
    const SunEventTable& e = white.Forecast.SunEvents;
    ASSERT_EQ(w.Twilights.size(), 2u);
    EXPECT_TRUE(BandsNamed(w, " Nautical Twilight ").empty());
    EXPECT_EQ(w.Twilights[0].X0, 0.0);
    EXPECT_NEAR(w.Twilights[0].X1, e.Horizon.RiseTime * Units, 1e-9);
    EXPECT_NEAR(w.Twilights[1].X0, e.Horizon.SetTime * Units, 1e-9);
    EXPECT_EQ(w.Twilights[1].X1, TimeLineWidth);
}

// A day whose second minor would fall after midnight draws one green bar.
TEST(DayGraph, DayWithoutSecondMinorHasOneGreenBar)
{
    Astronomy engine = At(92.42, 31.25, 6);
    double jd = CivilToJd(2024, 1, 1);
    for (; jd < CivilToJd(2024, 3, 1); jd += 1.0) {
        engine.ComputeDay(jd);
        if (engine.Forecast.Minor2Text == "*******")
            break;
    }
    ASSERT_LT(jd, CivilToJd(2024, 3, 1)) << "no day without a second minor in two months";
    const DayGraphSeries s = SeriesOf(engine, jd);
    EXPECT_EQ(std::count_if(s.Bars.begin(), s.Bars.end(),
                            [](const GraphMark& m) { return m.Color == 0x80FF80; }),
              1);
    EXPECT_EQ(s.Bars.size(), 3u);
}

// Minutes of the day of a "hh:mm AM" text.
int ClockMinutes(const std::string& t)
{
    int h = 0, m = 0;
    char half[3] = {};
    EXPECT_EQ(std::sscanf(t.c_str(), "%d:%d %2s", &h, &m, half), 3) << t;
    return (h % 12 + (std::string(half) == "PM" ? 12 : 0)) * 60 + m;
}

// The perigee of 10 March 2024 and the apogee of 23 March named with their times: PyEphem
// 4.1.4 (least and greatest Earth-Moon distance) puts them at 07:12 and 15:55 UT, 01:12 AM and
// 09:55 AM at zone 6. The book's method is good to half an hour for perigees; the apogee, a
// flat extreme, lies within a quarter of an hour of the reference's.
TEST(DayGraph, PerigeeAndApogeeDaysNameTheirTimes)
{
    Astronomy engine = At(92.42, 31.25, 6);
    Calendar cal;
    cal.CurYear = 2024;
    cal.CurMonth = 3;
    cal.SetYearTables(engine, 0);
    const struct {
        int Day;
        const char* Word;
        int Minutes;
        int Tolerance;
    } cases[] = {{10, "Perigee ", 72, 31}, {23, "Apogee ", 9 * 60 + 55, 15}};
    for (const auto& c : cases) {
        const double jd = CivilToJd(2024, 3, c.Day);
        const DayMarks& day = cal.YearDays[std::size_t(DayOfYearOf(2024, 3, c.Day))];
        const DayGraphSeries s = SeriesOf(engine, jd, day);
        ASSERT_FALSE(s.EventTexts.empty()) << c.Word;
        const std::string& t = s.EventTexts[0];
        EXPECT_EQ(t.substr(0, std::string(c.Word).size()), c.Word);
        EXPECT_NEAR(ClockMinutes(t.substr(std::string(c.Word).size())), c.Minutes, c.Tolerance)
            << t;
        ASSERT_EQ(s.EventX.size(), s.EventTexts.size());
        EXPECT_NEAR(s.EventX[0] / TimeLineWidth * 24 * 60, c.Minutes, c.Tolerance) << t;
    }
}

// Where the Sun and the Moon stand at the pointer's moment, against PyEphem 4.1.4 (no
// refraction; the Moon as seen from the place, up to a degree lower than from the Earth's
// centre), within half a degree:
// 07:30 AM at Alexandria in standard time, and 9 PM with daylight saving (02:00 UT next day).
TEST(DayGraph, SkyAtThePointerAgreesWithEphem)
{
    Astronomy engine = At(92.42, 31.25, 6);
    SkyReadout r = GetPicData(engine, CivilToJd(2024, 6, 20) + 7.5 / 24.0);
    EXPECT_NEAR(r.SunAzimuth, 78.233, 0.5);
    EXPECT_NEAR(r.SunElevation, 28.040, 0.5);
    EXPECT_NEAR(r.MoonAzimuth, 263.327, 0.5);
    EXPECT_NEAR(r.MoonElevation, -47.123, 0.5);

    engine.Site.DstOffsetDays = -1.0 / 24.0;
    r = GetPicData(engine, CivilToJd(2024, 6, 20) + 21.0 / 24.0);
    EXPECT_NEAR(r.SunAzimuth, 304.300, 0.5);
    EXPECT_NEAR(r.SunElevation, -8.701, 0.5);
    EXPECT_NEAR(r.MoonAzimuth, 135.876, 0.5);
    EXPECT_NEAR(r.MoonElevation, 13.834, 0.5);

    // The same moment as the day forecast's sky at the hour bar's 9 PM.
    engine.Site.HourInstant = 21.0 / 24.0 + engine.Site.ZoneDays;
    engine.ComputeSunDay(CivilToJd(2024, 6, 20));
    engine.ComputeDay(CivilToJd(2024, 6, 20));
    const auto& sky = engine.Forecast.SkyPosition;
    EXPECT_NEAR(sky.SunAzimuth * 57.29577951308238, r.SunAzimuth, 1e-6);
    EXPECT_NEAR(sky.MoonAltitude * 57.29577951308238, r.MoonElevation, 1e-6);
}

} // namespace
