// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/astronomy.h"
#include "astro/timebase.h"
#include "calendar/calendar.h"

#include <gtest/gtest.h>

namespace {

Calendar MonthOf(int year, int month)
{
    Calendar cal;
    cal.CurYear = std::int16_t(year);
    cal.CurMonth = std::int16_t(month);
    return cal;
}

TEST(CalendarTables, FebruaryAndLeapYears)
{
    Astronomy engine;
    for (auto [year, days] : {std::pair{1900, 28}, {2000, 29}, {2024, 29}, {2100, 28}}) {
        Calendar cal = MonthOf(year, 2);
        cal.SetYearTables(engine, 0);
        EXPECT_EQ(cal.MonthDays, days) << year;
        EXPECT_EQ(cal.YearSlots, days == 29 ? 367 : 366) << year;
        EXPECT_EQ(cal.MonthStartDoy[3], days == 29 ? 61 : 60) << year;
        EXPECT_EQ(cal.MonthStartDoy[12], days == 29 ? 336 : 335) << year;
    }
    EXPECT_EQ(Calendar::DaysInMonth(2), 28);
    EXPECT_EQ(Calendar::DaysInMonth(11), 30);
}

TEST(CalendarTables, YearAndMonthStartsAsJulianDays)
{
    Astronomy engine;
    Calendar cal = MonthOf(2000, 3);
    cal.SetYearTables(engine, 0);
    EXPECT_DOUBLE_EQ(cal.YearStartJD, 2451544.5);
    EXPECT_DOUBLE_EQ(cal.MonthStartJD[3], 2451544.5 + 60.0); // 1 March 2000
    EXPECT_DOUBLE_EQ(cal.YearEndJD, 2451544.5 + 365.0);      // 31 December 2000
    EXPECT_EQ(cal.FirstWeekday, 3);                          // a Wednesday
    EXPECT_EQ(cal.YearDays.size(), std::size_t(cal.YearSlots) + 2);
}

// March 2025 begins on a Saturday and has 31 days: every one of the 37 cells is used.
TEST(CalendarGrid, ThirtyOneDaysFromSaturdayFillAllCells)
{
    Astronomy engine;
    Calendar cal = MonthOf(2025, 3);
    cal.ComputePrevMonthDays();
    EXPECT_EQ(cal.PrevMonthDays, 28);
    Calendar leap = MonthOf(2024, 3);
    leap.ComputePrevMonthDays();
    EXPECT_EQ(leap.PrevMonthDays, 29);
    EXPECT_EQ(cal.CurMonth, 3);
    const auto cells = cal.DrawMonth(engine, 0, 2025, 3, 14);
    EXPECT_EQ(cal.FirstWeekday, 6);
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(cells[std::size_t(i)].Of, DayCell::Kind::PreviousMonth);
        EXPECT_EQ(cells[std::size_t(i)].Number, 23 + i); // 23..28 February
        EXPECT_FALSE(cells[std::size_t(i)].Enabled);
        EXPECT_EQ(cells[std::size_t(i)].Background, 0xFF0000u);
    }
    EXPECT_EQ(cells[6].Number, 1);
    EXPECT_EQ(cells[36].Number, 31);
    EXPECT_EQ(cells[36].Of, DayCell::Kind::ThisMonth);
    EXPECT_EQ(cells[36].Background, 0xC0C0C0u);
    EXPECT_EQ(cal.TodayCell, 6 + 13);
    EXPECT_EQ(cal.SelCell, cal.TodayCell);
}

// February 2015: 28 days from a Sunday leave cells 28..36 to March, numbered 1..9; the frame
// goes to day 1 when the month shown is not the clock's.
TEST(CalendarGrid, ShortMonthAndFrameOnDayOne)
{
    Astronomy engine;
    Calendar cal = MonthOf(2015, 2);
    cal.ComputePrevMonthDays();
    const auto cells = cal.DrawMonth(engine, 0, 2026, 11, 23);
    EXPECT_EQ(cal.FirstWeekday, 0);
    for (int i = 28; i < 37; ++i) {
        EXPECT_EQ(cells[std::size_t(i)].Of, DayCell::Kind::NextMonth);
        EXPECT_EQ(cells[std::size_t(i)].Number, i - 27);
        EXPECT_EQ(cells[std::size_t(i)].TextColor, 0xFFFFFFu);
    }
    EXPECT_EQ(cal.TodayCell, 0);
}

// The cells of March 2024: Easter (31st) in red, the phase and rating pictures and the marks
// from the year day table.
TEST(CalendarGrid, CellsShowTheYearDayTable)
{
    Astronomy engine;
    Calendar cal = MonthOf(2024, 3);
    cal.ComputePrevMonthDays();
    const auto cells = cal.DrawMonth(engine, 0, 2024, 3, 1);
    const int offset = cal.FirstWeekday; // 1 March 2024 is a Friday
    ASSERT_EQ(offset, 5);
    const DayCell& easter = cells[std::size_t(offset + 30)];
    EXPECT_EQ(easter.TextColor, 0x0000FFu);
    EXPECT_EQ(cells[std::size_t(offset + 1)].TextColor, 0x000000u);
    // 10 March 2024: new moon at 09:00 UT (the engine's observer is at zone 0).
    const DayCell& newMoon = cells[std::size_t(offset + 9)];
    EXPECT_EQ(newMoon.PhasePicture, 20);
    EXPECT_EQ(newMoon.RatingPicture, 4);
    EXPECT_EQ(cells[std::size_t(offset + 24)].PhasePicture, 22); // full moon 25 March
    int marked = 0;
    for (int d = 1; d <= 31; ++d) {
        const DayMarks& r = cal.YearDays[std::size_t(cal.MonthStartDoy[3] + d - 1)];
        const int marks = (r.Perigee >= 1) + (r.Declination >= 1) + (r.SeasonJD > 0);
        EXPECT_EQ(cells[std::size_t(offset + d - 1)].Marks, marks) << d;
        marked += marks;
    }
    EXPECT_GE(marked, 4); // equinox, a perigee, an apogee, two declinations at least
}

TEST(CalendarTexts, MonthDaysTextAbbrevAndShortClock)
{
    const std::string feb = MonthDaysText(0, 28);
    EXPECT_EQ(feb.substr(feb.size() - 3), " 28");
    EXPECT_EQ(feb.rfind("1   2", 0), 0u);
    const std::string m = MonthDaysText(3, 31);
    EXPECT_EQ(m.substr(0, 16), std::string(15, ' ') + "1");
    EXPECT_EQ(m.substr(m.size() - 5), "30 31");
    EXPECT_EQ(MonthDaysText(6, 30).substr(MonthDaysText(6, 30).size() - 2), "30");
    EXPECT_EQ(MonthAbbrev(1), "Jan");
    EXPECT_EQ(MonthAbbrev(12), "Dec");
    EXPECT_EQ(ShortClock("6:05 PM"), "6:05 P");
    EXPECT_EQ(ShortClock("10:15 AM"), "10:15 A");
    EXPECT_EQ(ShortClock("****"), "****");
    EXPECT_EQ(ShortClock("*****"), "*****");
    EXPECT_STREQ(MonthNames[2], "February");
    EXPECT_STREQ(DayNames[7], "Saturday");
    EXPECT_EQ(std::string(SeasonNames[3]).size(), 16u);
}

TEST(CalendarTables, PreviousMonthOfJanuary1900IsDecember2500)
{
    Calendar cal = MonthOf(1900, 1);
    cal.ComputePrevMonthDays();
    EXPECT_EQ(cal.PrevMonthDays, 31);
    EXPECT_EQ(cal.CurYear, 1900);
    EXPECT_EQ(cal.CurMonth, 1);
}

} // namespace
