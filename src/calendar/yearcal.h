// SPDX-License-Identifier: GPL-3.0-or-later
// The texts of the year calendar window: twelve small month calendars of one year.
#pragma once

#include "calendar/calendar.h"

#include <array>
#include <string>

struct YearCalMonth {
    std::string Name;    // "Jan"
    std::string Caption; // the weekday header
    std::string Days;    // MonthDaysText: 5 blanks per weekday before the 1st, then the days
};

struct YearCalPage {
    std::string Caption;                 // two blanks and the year with its leading blank
    std::array<YearCalMonth, 13> Months; // 1..12
};

extern const char* const YearCalWeekdays; // " S  M  T  W  T   F   S"

// The twelve months of CurYear. Leaves the calendar's tables at CurMonth of CurYear, as a
// month change does.
YearCalPage FillYearCal(Calendar& cal, Astronomy& engine, std::int16_t southernHemisphere);
