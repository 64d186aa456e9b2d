// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/calendar.h"

#include <gtest/gtest.h>

#include <string>

namespace {

Calendar HolidaysOf(int year)
{
    Calendar cal;
    cal.CurYear = std::int16_t(year);
    cal.YearSlots = IsLeapYear(year) ? 367 : 366;
    cal.YearDays.assign(std::size_t(cal.YearSlots) + 2, DayMarks{});
    cal.YearStartJD = 2415018.5 + 1.0; // the JDs below are read relative to it
    SetHolidays(cal);
    return cal;
}

const DayMarks& Day(const Calendar& cal, int month, int day)
{
    return cal.YearDays[std::size_t(DayOfYearOf(cal.CurYear, month, day))];
}

TEST(Holidays, TheEasterGroupAndOthersOf2024)
{
    const Calendar cal = HolidaysOf(2024);
    EXPECT_EQ(Day(cal, 3, 31).Text, " Easter Sunday ");
    EXPECT_EQ(Day(cal, 3, 29).Text, " Good Friday ");
    EXPECT_EQ(Day(cal, 3, 24).Text, " Palm Sunday ");
    EXPECT_EQ(Day(cal, 2, 13).Text, " Shrove Tuesday/Mardi Gras ");
    EXPECT_EQ(Day(cal, 2, 14).Text, " St. Valentine's Day  Ash Wednesday ");
    EXPECT_EQ(Day(cal, 5, 9).Text, " Ascension Day ");
    EXPECT_EQ(Day(cal, 11, 28).Text, " Thanksgiving Day ");
    EXPECT_EQ(Day(cal, 1, 15).Text, " Martin Luther King Day ");
    EXPECT_EQ(Day(cal, 2, 19).Text, " President's Day ");
    EXPECT_EQ(Day(cal, 5, 12).Text, " Mother's Day ");
    EXPECT_EQ(Day(cal, 5, 27).Text, " Memorial Day ");
    EXPECT_EQ(Day(cal, 6, 16).Text, " Father's Day ");
    EXPECT_EQ(Day(cal, 9, 2).Text, " Labor Day ");
    EXPECT_EQ(Day(cal, 10, 14).Text, " Columbus Day ");
    EXPECT_EQ(Day(cal, 12, 25).Text, " Christmas Day ");
    EXPECT_EQ(Day(cal, 2, 22).Text, " Washington's Birthday ");
    EXPECT_TRUE(Day(cal, 7, 4).Holiday);
    EXPECT_FALSE(Day(cal, 7, 5).Holiday);
    EXPECT_EQ(Day(cal, 7, 5).Text, "");
    int holidays = 0;
    for (int d = 1; d <= cal.YearSlots; ++d)
        holidays += cal.YearDays[std::size_t(d)].Holiday;
    EXPECT_EQ(holidays, 27); // 28 captions, two on 14 February
}

TEST(Holidays, DaylightSavingDaysOf2024)
{
    const Calendar cal = HolidaysOf(2024);
    EXPECT_EQ(cal.DstStartDay, DayOfYearOf(2024, 4, 7));
    EXPECT_EQ(cal.DstEndDay, DayOfYearOf(2024, 10, 27));
    EXPECT_EQ(Day(cal, 4, 7).Text, " Daylight Saving's Time Starts ");
    EXPECT_EQ(Day(cal, 10, 27).Text, " Daylight Saving's Time Ends ");
    EXPECT_DOUBLE_EQ(cal.DstStartJD, cal.YearStartJD + cal.DstStartDay - 1 + 0.0833333333);
    EXPECT_DOUBLE_EQ(cal.DstEndJD, cal.YearStartJD + cal.DstEndDay - 1 + 0.0833333333);
}

// 2018: 1 April is a Sunday and Easter; 2022 (or 2021): Memorial Day on 31 May; 2025: Labor
// Day on 1 September; 2023: daylight saving ends on 29 October, 31 October being a Tuesday.
TEST(Holidays, WeekdayRulesAtTheirEdges)
{
    const Calendar y2018 = HolidaysOf(2018);
    EXPECT_EQ(y2018.DstStartDay, DayOfYearOf(2018, 4, 1));
    EXPECT_EQ(Day(y2018, 4, 1).Text,
              " Daylight Saving's Time Starts  April Fool's Day  Easter Sunday ");
    const Calendar y2021 = HolidaysOf(2021);
    EXPECT_EQ(Day(y2021, 5, 31).Text, " Memorial Day ");
    const Calendar y2025 = HolidaysOf(2025);
    EXPECT_EQ(Day(y2025, 9, 1).Text, " Labor Day ");
    EXPECT_EQ(Day(y2025, 10, 31).Text, " Halloween ");
    const Calendar y2023 = HolidaysOf(2023);
    EXPECT_EQ(y2023.DstEndDay, DayOfYearOf(2023, 10, 29));
    // Thanksgiving when 1 November is a Friday (2024 above) and a Thursday (2018).
    EXPECT_EQ(Day(y2018, 11, 22).Text, " Thanksgiving Day ");
}

// Fixed February days keep their day-of-year numbers in leap years; Easter by Gauss's rule.
TEST(Holidays, FixedDaysAndEasterAcrossYears)
{
    const Calendar leap = HolidaysOf(2000);
    EXPECT_EQ(leap.YearDays[53].Text, " Washington's Birthday ");
    EXPECT_EQ(Day(leap, 4, 23).Text, " Easter Sunday ");
    EXPECT_EQ(Day(HolidaysOf(1900), 4, 15).Text, " Easter Sunday ");
    EXPECT_EQ(Day(HolidaysOf(2038), 4, 25).Text, " Easter Sunday ");
    EXPECT_EQ(Day(HolidaysOf(2500), 1, 1).Text, " New Year's Day ");
}

} // namespace
