// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/astronomy.h"
#include "astro/timebase.h"
#include "calendar/calendar.h"
#include "calendar/yearcal.h"

#include <gtest/gtest.h>

namespace {

Calendar MonthOf(int year, int month)
{
    Calendar cal;
    cal.CurYear = std::int16_t(year);
    cal.CurMonth = std::int16_t(month);
    cal.ComputePrevMonthDays();
    return cal;
}

// March 2025 begins on a Saturday and has 31 days: every one of the 37 cells is used, the
// first six greyed with 23..28 February, today framed.
TEST(CalendarGrid, ThirtyOneDaysFromSaturdayFillAllCells)
{
    Astronomy engine;
    Calendar cal = MonthOf(2025, 3);
    const auto cells = cal.DrawMonth(engine, 0, 2025, 3, 14);
    EXPECT_EQ(cal.FirstWeekday, 6);
    for (int i = 0; i < 6; ++i) {
        EXPECT_EQ(cells[std::size_t(i)].Of, DayCell::Kind::PreviousMonth);
        EXPECT_EQ(cells[std::size_t(i)].Number, 23 + i);
        EXPECT_FALSE(cells[std::size_t(i)].Enabled);
    }
    EXPECT_EQ(cells[6].Number, 1);
    EXPECT_EQ(cells[36].Number, 31);
    EXPECT_EQ(cal.TodayCell, 6 + 13);
    EXPECT_EQ(cal.SelCell, cal.TodayCell);
}

// March 2024 (from a Friday): Easter (31st) in red; the new moon of 10 March (09:00 UT) and
// the full moon of 25 March with their pictures, the new moon's day rated best.
TEST(CalendarGrid, CellsShowTheYearDayTable)
{
    Astronomy engine;
    Calendar cal = MonthOf(2024, 3);
    const auto cells = cal.DrawMonth(engine, 0, 2024, 3, 1);
    ASSERT_EQ(cal.FirstWeekday, 5);
    const auto cell = [&cells](int day) { return cells[std::size_t(5 + day - 1)]; };
    EXPECT_EQ(cell(31).TextColor, 0x0000FFu);
    EXPECT_EQ(cell(2).TextColor, 0x000000u);
    EXPECT_EQ(cell(10).PhasePicture, 20);
    EXPECT_EQ(cell(10).RatingPicture, 4);
    EXPECT_EQ(cell(25).PhasePicture, 22);
    EXPECT_EQ(cell(20).Marks, 1); // the equinox
}

// The monthly list's short clock keeps the first letter of AM/PM and the missing-time marks.
TEST(CalendarTexts, ShortClock)
{
    for (const auto& [clock, shown] : {std::pair{"6:05 PM", "6:05 P"},
                                       {"10:15 AM", "10:15 A"},
                                       {"****", "****"},
                                       {"*****", "*****"}})
        EXPECT_EQ(ShortClock(clock), shown);
}

// 2024: February has 29 days and starts on a Thursday (20 blanks), June starts on a Saturday
// (30 blanks), September on a Sunday; the calendar stays on the month it showed.
TEST(YearCal, TwelveMonthsOf2024)
{
    Astronomy engine;
    Calendar cal;
    cal.CurYear = 2024;
    cal.CurMonth = 8;
    const YearCalPage page = FillYearCal(cal, engine, 0);
    EXPECT_EQ(page.Months[5].Caption, " S  M  T  W  T   F   S");
    const std::string& feb = page.Months[2].Days;
    EXPECT_EQ(feb.substr(0, 22), std::string(20, ' ') + "1 ");
    EXPECT_EQ(feb.substr(feb.size() - 3), " 29");
    EXPECT_EQ(page.Months[6].Days.substr(0, 31), std::string(30, ' ') + "1");
    EXPECT_EQ(page.Months[9].Days.substr(0, 2), "1 ");
    EXPECT_EQ(page.Months[4].Days.substr(page.Months[4].Days.size() - 3), " 30");
    EXPECT_EQ(cal.CurMonth, 8);
    EXPECT_EQ(cal.FirstWeekday, 4); // 1 August 2024 is a Thursday
    EXPECT_EQ(cal.MonthDays, 31);

    cal.CurYear = 2023;
    const std::string feb2023 = FillYearCal(cal, engine, 0).Months[2].Days;
    EXPECT_EQ(feb2023.substr(feb2023.size() - 3), " 28");
    EXPECT_EQ(feb2023.substr(0, 16), std::string(15, ' ') + "1"); // a Wednesday
}

} // namespace
