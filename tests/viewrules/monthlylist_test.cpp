// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/astronomy.h"
#include "astro/timebase.h"
#include "calendar/calendar.h"
#include "viewrules/monthlylist.h"

#include <gtest/gtest.h>

namespace {

Astronomy AtAlexandria()
{
    Astronomy engine;
    engine.Site.SetPlace(92.42, 31.25, 6);
    return engine;
}

// February 2024 lists 29 lines, each starting with the day in two digits; the 12-hour layout
// shortens "PM" to "P". A missing time reads "XX:XX" and keeps the columns after it in place:
// 2 February has its second minor after midnight, and every line is as long as the others.
TEST(MonthlyList, LeapFebruaryWithMissingTimesInBothLayouts)
{
    Astronomy engine = AtAlexandria();
    for (const bool ampm : {true, false}) {
        const auto lines = MonthlyListLines(engine, CivilToJd(2024, 2, 1), 29, ampm);
        ASSERT_EQ(lines.size(), 29u);
        EXPECT_EQ(lines[28].substr(0, 2), "29");
        engine.ComputeDay(CivilToJd(2024, 2, 2));
        ASSERT_EQ(engine.Forecast.Minor2Text, "*******");
        EXPECT_NE(lines[1].find("XX:XX"), std::string::npos) << lines[1];
        EXPECT_EQ(lines[2].find("XX:XX"), std::string::npos) << lines[2];
        for (const std::string& line : lines)
            EXPECT_EQ(line.size(), lines[2].size()) << line;
        if (ampm) { // sunrise about 7 AM, sunset about 5:45 PM; no moonrise that day
            EXPECT_EQ(lines[0].substr(0, 25), "01  07:02 A 05:44 P XX:XX");
            EXPECT_EQ(lines[0].find(" PM"), std::string::npos);
        }
    }
    std::string line;
    PRNTrue(line, "****");
    EXPECT_EQ(line, "XX:XX   ");
    PRNFalse(line, "   ****", 8);
    EXPECT_EQ(line, "XX:XX      XX:XX ");
}

// Seattle with daylight saving, November 2026: the Moon rises at 23:19 PST on 1 November
// (PyEphem), which is 00:19 of 2 November on the clock; 1 November has no moonrise and shows
// the placeholder, 2 November shows 12:19 A (moonrise is the list's third column).
TEST(MonthlyList, DayWithoutMoonriseShowsThePlaceholder)
{
    Astronomy engine;
    engine.Site.SetPlace(122.33, 47.61, 8);
    engine.Site.DstOffsetDays = -1.0 / 24.0;
    for (const bool ampm : {true, false}) {
        const auto lines = MonthlyListLines(engine, CivilToJd(2026, 11, 1), 30, ampm);
        const std::size_t rise = ampm ? 20 : 23; // after the day and the Sun's columns
        EXPECT_EQ(lines[0].substr(rise, 8), ampm ? "XX:XX   " : "   XX:XX") << lines[0];
        EXPECT_EQ(lines[1].substr(rise, 8), ampm ? "12:19 A " : "   00:19") << lines[1];
    }
}

} // namespace
