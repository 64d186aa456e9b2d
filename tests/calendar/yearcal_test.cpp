// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/astronomy.h"
#include "calendar/yearcal.h"

#include <gtest/gtest.h>

namespace {

// 2024: February has 29 days and starts on a Thursday (20 blanks), June starts on a Saturday
// (30 blanks), September on a Sunday; the calendar stays on the month it showed.
TEST(YearCal, TwelveMonthsOf2024)
{
    Astronomy engine;
    Calendar cal;
    cal.CurYear = 2024;
    cal.CurMonth = 8;
    const YearCalPage page = FillYearCal(cal, engine, 0);
    EXPECT_EQ(page.Caption, "   2024");
    EXPECT_EQ(page.Months[1].Name, "Jan");
    EXPECT_EQ(page.Months[12].Name, "Dec");
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
