// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/timebase.h"
#include "calendar/calendar.h"
#include "support/textrows.h"

#include <gtest/gtest.h>

#include <string>

namespace {

Calendar HolidaysOf(int year)
{
    Calendar cal;
    cal.CurYear = std::int16_t(year);
    cal.YearSlots = IsLeapYear(year) ? 367 : 366;
    cal.YearDays.assign(std::size_t(cal.YearSlots) + 2, DayMarks{});
    cal.YearStartJD = CivilToJd(year, 1, 1);
    SetHolidays(cal);
    return cal;
}

// Every caption of calendar/data/holidays.csv on its day; 2024 has 27 red days (28 captions,
// two on 14 February).
TEST(Holidays, CaptionsOnTheirDaysAcrossYears)
{
    const auto rows = textrows::Read(QUILLMERE_HOLIDAYS, '|');
    for (const auto& [line, f] : rows) {
        const int y = std::stoi(f.at(0)),
                  doy = DayOfYearOf(y, std::stoi(f.at(1)), std::stoi(f.at(2)));
        EXPECT_EQ(HolidaysOf(y).YearDays[std::size_t(doy)].Text, f.at(3)) << line;
    }
    EXPECT_GE(rows.size(), 25u);
    const Calendar cal = HolidaysOf(2024);
    int holidays = 0;
    for (int d = 1; d <= cal.YearSlots; ++d)
        holidays += cal.YearDays[std::size_t(d)].Holiday;
    EXPECT_EQ(holidays, 27);
    EXPECT_TRUE(cal.YearDays[std::size_t(DayOfYearOf(2024, 7, 4))].Holiday);
}

// The calendar's daylight-saving rule changes the clocks at 2 AM local standard time of the
// first Sunday of April and the last Sunday of October.
TEST(Holidays, DaylightSavingChangesAtTwoInTheMorning)
{
    const Calendar cal = HolidaysOf(2024);
    EXPECT_NEAR(cal.DstStartJD, CivilToJd(2024, 4, 7) + 2.0 / 24.0, 1e-6);
    EXPECT_NEAR(cal.DstEndJD, CivilToJd(2024, 10, 27) + 2.0 / 24.0, 1e-6);
}

} // namespace
