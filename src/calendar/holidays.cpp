// SPDX-License-Identifier: GPL-3.0-or-later
// The year's holidays and the daylight-saving days.
#include "calendar/calendar.h"

#include "astro/timebase.h"

#include <cmath>
#include <utility>
#include <vector>

namespace {

// Easter Sunday by Gauss's method with the constants of 1900-2099, used for every year.
std::pair<int, int> EasterMonthDay(int y)
{
    const int a = y % 19, b = y % 4, c = y % 7;
    const int d = (19 * a + 24) % 30;
    const int e = (2 * b + 4 * c + 6 * d + 5) % 7;
    const int n = 22 + d + e;
    return n <= 31 ? std::pair{3, n} : std::pair{4, n - 31};
}

// The n-th or last weekday of a month: D = D1 + K - w, shifted by Shift when the weekday w of
// the 1st lies in [Low, High].
struct WeekdayRule {
    const char* Caption;
    int Month, K, Low, High, Shift;
};

const WeekdayRule DstStart = {" Daylight Saving's Time Starts ", 4, 8, 1, 1, -7};
const WeekdayRule WeekdayRules[] = {
    {" Thanksgiving Day ", 11, 26, 6, 7, 7}, {" Martin Luther King Day ", 1, 16, 3, 7, 7},
    {" President's Day ", 2, 16, 3, 7, 7},   {" Memorial Day ", 5, 30, 7, 7, 7},
    {" Mother's Day ", 5, 15, 1, 1, -7},     {" Father's Day ", 6, 22, 1, 1, -7},
    {" Labor Day ", 9, 9, 1, 2, -7},         {" Columbus Day ", 10, 16, 1, 2, -7},
};

int RuleDay(int year, const WeekdayRule& rule)
{
    const int w = WeekdayOf(year, rule.Month, 1);
    const int d = DayOfYearOf(year, rule.Month, 1) + rule.K - w;
    return w >= rule.Low && w <= rule.High ? d + rule.Shift : d;
}

// The daylight-saving days by the calendar's rule: the first Sunday of April and the last
// Sunday of October, with 02:00 of each.
void RuleDaylightDays(Calendar& cal)
{
    const int y = cal.CurYear;
    cal.DstStartDay = std::int16_t(RuleDay(y, DstStart));
    cal.DstEndDay = std::int16_t(DayOfYearOf(y, 10, 31) - WeekdayOf(y, 10, 31) + 1);
    cal.DstStartJD = cal.YearStartJD + cal.DstStartDay - 1 + 0.0833333333;
    cal.DstEndJD = cal.YearStartJD + cal.DstEndDay - 1 + 0.0833333333;
}

// The days of the year on which the place's clock goes forward (start) and back (end), with
// the local clock time of each change as the clock read just before it; 0 when it does not.
void ClockDaylightDays(Calendar& cal, const ZoneRules& clock)
{
    cal.DstStartDay = cal.DstEndDay = 0;
    cal.DstStartJD = cal.DstEndJD = 0.0;
    const double yearEnd = CivilToJd(cal.CurYear + 1, 1, 1);
    // A day's margin either side: the year is one of local dates.
    for (const double t : clock.ChangesBetween(cal.YearStartJD - 1.0, yearEnd + 1.0)) {
        const int before = clock.MinutesAt(t - 1.0 / 86400.0), after = clock.MinutesAt(t);
        const double local = t + before / 1440.0;
        const double day = std::floor(local + 0.5) - 0.5;
        if (day < cal.YearStartJD || day >= yearEnd)
            continue;
        const bool forward = after > before;
        (forward ? cal.DstStartDay : cal.DstEndDay) = std::int16_t(day - cal.YearStartJD + 1.0);
        (forward ? cal.DstStartJD : cal.DstEndJD) = local;
    }
}

} // namespace

void SetHolidays(Calendar& cal, const ZoneRules& clock)
{
    for (int d = 1; d <= cal.YearSlots; ++d)
        cal.YearDays[std::size_t(d)].Holiday = false;
    const int y = cal.CurYear;
    const auto [em, ed] = EasterMonthDay(y);
    const int easter = DayOfYearOf(y, em, ed);
    const int christmasEve = DayOfYearOf(y, 12, 24);
    if (clock.Empty())
        RuleDaylightDays(cal);
    else
        ClockDaylightDays(cal, clock);

    std::vector<std::pair<const char*, int>> days = {
        {" Easter Sunday ", easter},
        {" Good Friday ", easter - 2},
        {" Palm Sunday ", easter - 7},
        {" Shrove Tuesday/Mardi Gras ", easter - 47},
        {" Ash Wednesday ", easter - 46},
        {" Ascension Day ", easter + 39},
        {" New Year's Day ", 1},
        {" Groundhog Day ", 33},
        {" Lincoln's Birthday ", 43},
        {" St. Valentine's Day ", 45},
        {" Washington's Birthday ", 53},
        {" St. Patrick's Day ", DayOfYearOf(y, 3, 17)},
        {" April Fool's Day ", DayOfYearOf(y, 4, 1)},
        {" Flag Day ", DayOfYearOf(y, 6, 14)},
        {" Independence Day ", DayOfYearOf(y, 7, 4)},
        {" Halloween ", DayOfYearOf(y, 10, 31)},
        {" Christmas Eve ", christmasEve},
        {" Christmas Day ", christmasEve + 1},
    };
    // A clock without changes in the year has no daylight-saving days to mark.
    if (cal.DstStartDay > 0)
        days.emplace_back(DstStart.Caption, cal.DstStartDay);
    if (cal.DstEndDay > 0)
        days.emplace_back(" Daylight Saving's Time Ends ", cal.DstEndDay);
    for (const WeekdayRule& rule : WeekdayRules)
        days.emplace_back(rule.Caption, RuleDay(y, rule));
    for (const auto& [caption, d] : days) {
        DayMarks& r = cal.YearDays[std::size_t(d)];
        r.Text = caption + r.Text;
        r.Holiday = true;
    }
}
