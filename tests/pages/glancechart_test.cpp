// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/astronomy.h"
#include "calendar/calendar.h"
#include "pages/glancechart.h"

#include <gtest/gtest.h>

#include <map>

namespace {

Calendar MonthAt(int year, int month, double lonWest, double latNorth, int zone,
                 std::int16_t southern = 0)
{
    Astronomy engine;
    engine.Site.SetPlace(lonWest, latNorth, std::int16_t(zone));
    Calendar cal;
    cal.CurYear = std::int16_t(year);
    cal.CurMonth = std::int16_t(month);
    cal.SetYearTables(engine, southern);
    return cal;
}

// Day -> the picture on its phase stem.
std::map<int, int> PhaseDays(const GlanceChart& chart)
{
    std::map<int, int> days;
    for (const GlanceDay& d : chart.Days)
        for (const GlanceStem& s : d.Stems)
            if (s.PhaseSymbol > 0)
                days[d.Day] = s.PhaseSymbol;
    return days;
}

// February 2024 in Central Standard Time: 29 days; the phases of the published tables (last
// quarter 2 Feb 17:18, new 9 Feb 16:59, first quarter 16 Feb 09:01, full 24 Feb 06:30),
// perigee 10 Feb and apogee 25 Feb; the south sees the quarters lit on the other side.
TEST(GlanceChart, LeapFebruaryHasTwentyNineDaysAndItsEvents)
{
    const Calendar cal = MonthAt(2024, 2, 92.42, 31.25, 6);
    const GlanceChart chart = GlanceChartOf(cal, 0, 9600, 2400);
    EXPECT_EQ(chart.Title, "Lunar Events for Feb/2024");
    ASSERT_EQ(chart.Days.size(), 29u);
    EXPECT_EQ(chart.Days[28].Day, 29);
    EXPECT_EQ(PhaseDays(chart), (std::map<int, int>{{2, 4}, {9, 1}, {16, 2}, {24, 3}}));
    std::map<int, std::string> labels;
    for (const GlanceDay& d : chart.Days)
        for (const GlanceStem& s : d.Stems)
            if (s.Label == "Perigee" || s.Label == "Apogee")
                labels[d.Day] = s.Label;
    EXPECT_EQ(labels, (std::map<int, std::string>{{10, "Perigee"}, {25, "Apogee"}}));

    const GlanceChart south = GlanceChartOf(cal, -1, 9600, 2400);
    EXPECT_EQ(PhaseDays(south), (std::map<int, int>{{2, 2}, {9, 1}, {16, 4}, {24, 3}}));
}

// 18 September 2024 at Greenwich has the full moon (02:34 UT) and a perigee (13:28 UT): two
// stems, the tall one carrying the picture above the perigee's label.
TEST(GlanceChart, FullMoonAndPerigeeOnOneDay)
{
    const Calendar cal = MonthAt(2024, 9, 0.0, 51.48, 0);
    const GlanceChart chart = GlanceChartOf(cal, 0, 9600, 2400);
    const GlanceDay& day = chart.Days[17];
    ASSERT_EQ(day.Stems.size(), 2u);
    const GlanceStem& phase = day.Stems[0];
    const GlanceStem& perigee = day.Stems[1];
    EXPECT_EQ(phase.PhaseSymbol, 3);
    EXPECT_EQ(perigee.Label, "Perigee");
    EXPECT_LT(phase.Top, perigee.Top);
    EXPECT_EQ(phase.X, perigee.X);
    EXPECT_LE(phase.Picture.Bottom(), perigee.LabelBox.Top);
}

} // namespace
