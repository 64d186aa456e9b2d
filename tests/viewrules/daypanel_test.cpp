// SPDX-License-Identifier: GPL-3.0-or-later
#include "viewrules/daypanel.h"

#include "astro/astronomy.h"
#include "viewrules/monthlylist.h"

#include <gtest/gtest.h>

#include <tuple>

namespace {

DayForecast Day()
{
    DayForecast f;
    f.SunEvents.Horizon.RiseTime = 6.5;
    f.SunEvents.Horizon.TransitTime = 12.5;
    f.SunEvents.Horizon.SetTime = 18.5;
    f.Major1 = 7.5;
    f.Major2 = 19.0 + 31.0 / 60.0;
    f.Minor1 = 1.0;
    f.Minor2 = -1.0;
    f.Major1Text = "07:30 AM";
    f.Major2Text = "07:31 PM";
    f.Minor1Text = "01:00 AM";
    f.Minor2Text = "*******";
    f.DayLength = 12.0;
    f.MoonEvents.RiseTime = 3.25;
    f.MoonEvents.SetTime = 15.5;
    f.MoonEvents.RiseFlag = EventFlag::InDay;
    f.MoonEvents.SetFlag = EventFlag::InDay;
    return f;
}

// Labels 18-19 and 21-22: the Moon's first and second event of the day, named and timed;
// an event on another day reads "*****".
TEST(DayPanel, MoonRiseAndSetInTheOrderTheyHappen)
{
    const struct {
        double Rise;
        EventFlag RiseFlag, SetFlag;
        const char *First, *FirstTime, *Second, *SecondTime;
    } cases[] = {
        {3.25, EventFlag::InDay, EventFlag::InDay, "Rise", "03:15 AM", "Set", "03:30 PM"},
        {16.0, EventFlag::InDay, EventFlag::InDay, "Set", "03:30 PM", "Rise", "04:00 PM"},
        {16.0, EventFlag::OtherDay, EventFlag::InDay, "Set", "03:30 PM", "Rise", "*****"},
        {16.0, EventFlag::InDay, EventFlag::OtherDay, "Set", "*****", "Rise", "04:00 PM"},
    };
    for (const auto& c : cases) {
        DayForecast f = Day();
        f.MoonEvents.RiseTime = c.Rise;
        f.MoonEvents.RiseFlag = c.RiseFlag;
        f.MoonEvents.SetFlag = c.SetFlag;
        const DayPanel p = DoLabels(f, 0, true);
        EXPECT_EQ(
            std::tuple(p.Captions.at(18), p.Captions.at(19), p.Captions.at(21), p.Captions.at(22)),
            std::tuple(c.First, c.FirstTime, c.Second, c.SecondTime))
            << c.Rise << " " << int(c.RiseFlag) << " " << int(c.SetFlag);
    }
}

TEST(DayPanel, ToolTips)
{
    DayForecast f = Day();
    f.Major1 = 0.5;
    EXPECT_EQ(LabelToolTip(0, f, true), " 11:30 PM to 01:30 AM ");
    EXPECT_EQ(LabelToolTip(5, f, true), " ****** ");
    EXPECT_EQ(LabelToolTip(4, f, false), " 00:25 to 01:34 ");
    EXPECT_EQ(LabelToolTip(7, f, true), " Length of day, Sunrise to Sunset ");
    f.SunEvents.Civil.RiseTime = 6.0;
    f.SunEvents.Nautical.RiseTime = 5.5;
    f.SunEvents.Astronomical.RiseTime = 5.0;
    EXPECT_EQ(LabelToolTip(14, f, false),
              " Transit=12:30 Twilight  Civil=06:00 Nautical=05:30 Astronomical=05:00 ");
    EXPECT_EQ(LabelToolTip(3, f, true), "");
}

// Tromso, 20 June 2025, summer time: the Moon rises at 00:21 and again at 23:48, and sets at
// 16:18 (PyEphem's sampled altitude); the panel shows both rises on the rise's line, and the
// monthly list notes the second after its columns. The Sun stays up: 24 hours of daylight and
// neither sunrise nor sunset.
TEST(DayPanel, MidsummerDayNearThePoleInPanelAndList)
{
    Astronomy a;
    a.Site.SetPlace(-18.96, 69.65, -1);
    a.Site.DstOffsetDays = -1.0 / 24.0;
    const double J = CivilToJd(2025, 6, 20);
    a.ComputeSunDay(J);
    a.ComputeDay(J);
    const DayPanel p = DoLabels(a.Forecast, 0, false);
    EXPECT_EQ(p.Captions.at(7), "24:00");
    EXPECT_EQ(p.Captions.at(14), "*****");
    EXPECT_EQ(p.Captions.at(16), "*****");
    EXPECT_EQ(p.Captions.at(18), "Rise");
    EXPECT_EQ(p.Captions.at(19), "00:21 / 23:48");
    EXPECT_EQ(p.Captions.at(21), "Set");
    EXPECT_EQ(p.Captions.at(22), "16:18");
    // The label may be too narrow for both times: its tool tip says them in full.
    EXPECT_EQ(LabelToolTip(19, a.Forecast, true), " Moonrise 12:21 AM, and again 11:48 PM ");
    EXPECT_EQ(LabelToolTip(22, a.Forecast, true), "");
    for (const bool ampm : {false, true}) {
        const std::string line = MonthlyListLines(a, J, 1, ampm).front();
        EXPECT_TRUE(line.ends_with(ampm ? "  2nd Rise 11:48 P" : "  2nd Rise 23:48")) << line;
    }
}

} // namespace
