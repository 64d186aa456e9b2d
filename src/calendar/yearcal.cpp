// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/yearcal.h"

const char* const YearCalWeekdays = " S  M  T  W  T   F   S";

YearCalPage FillYearCal(Calendar& cal, Astronomy& engine, std::int16_t southernHemisphere)
{
    YearCalPage page;
    page.Caption = "   " + std::to_string(cal.CurYear);
    const int year = cal.CurYear;
    for (int m = 1; m <= 12; ++m) {
        const int days = Calendar::DaysInMonth(m) + (m == 2 && IsLeapYear(year) ? 1 : 0);
        YearCalMonth& month = page.Months[std::size_t(m)];
        month.Name = MonthAbbrev(m);
        month.Caption = YearCalWeekdays;
        month.Days = MonthDaysText(WeekdayOf(year, m, 1) - 1, days);
    }
    // The month layouts need no year tables; the selected month's are rebuilt once.
    cal.SetYearTables(engine, southernHemisphere);
    return page;
}
