// SPDX-License-Identifier: GPL-3.0-or-later
#include "viewrules/reminders.h"

#include "astro/astronomy.h"
#include "astro/timebase.h"
#include "calendar/calendar.h"
#include "viewrules/daypanel.h"

#include <algorithm>

namespace {
constexpr int ClockMode24 = 3;

// A reminder for the event that runs from `from` to `to`, hours of the day's clock.
DueReminder Reminder(ReminderEvent event, const ReminderDay& day, double from, double to,
                     int leadMinutes)
{
    DueReminder r;
    r.Event = event;
    r.Start = day.J0 + from / 24.0;
    r.At = r.Start - MinutesToDays(leadMinutes);
    r.StartClock = FormatClock(ClockMode24, WrapInto(from, 24.0), false);
    r.EndClock = FormatClock(ClockMode24, WrapInto(to, 24.0), false);
    r.Rating = day.Rating;
    return r;
}

void AddPeriod(std::vector<DueReminder>& out, ReminderEvent event, const ReminderDay& day,
               double centre, double halfHours, int lead)
{
    if (centre >= 0) // a day without a minor period has -1
        out.push_back(Reminder(event, day, centre - halfHours, centre + halfHours, lead));
}

void DayReminders(std::vector<DueReminder>& out, const ReminderDay& day, const ReminderOption& o)
{
    const DayForecast& f = day.Forecast;
    const int lead = o.LeadMinutes;
    if (o.Majors)
        for (double centre : {f.Major1, f.Major2})
            AddPeriod(out, ReminderEvent::MajorPeriod, day, centre, MajorHalfHours, lead);
    if (o.Minors)
        for (double centre : {f.Minor1, f.Minor2})
            AddPeriod(out, ReminderEvent::MinorPeriod, day, centre, MinorHalfHours, lead);
    if (!o.SunEvents)
        return;
    const RiseTransitSet& sun = f.SunEvents.Horizon;
    if (sun.RiseFlag == EventFlag::InDay)
        out.push_back(Reminder(ReminderEvent::Sunrise, day, sun.RiseTime, sun.RiseTime, lead));
    if (sun.SetFlag == EventFlag::InDay)
        out.push_back(Reminder(ReminderEvent::Sunset, day, sun.SetTime, sun.SetTime, lead));
}
} // namespace

ReminderDay ReminderDayAt(Astronomy& engine, Calendar& cal, std::int16_t southernHemisphere,
                          int year, int month, int day)
{
    if (cal.CurYear != year || cal.YearDays.empty()) {
        cal.CurYear = std::int16_t(year);
        cal.CurMonth = std::int16_t(month);
        cal.SetYearTables(engine, southernHemisphere);
    }
    ReminderDay d;
    d.J0 = CivilToJd(year, month, day);
    engine.ComputeSunDay(d.J0);
    engine.ComputeDay(d.J0);
    d.Forecast = engine.Forecast;
    d.Rating = cal.YearDays[std::size_t(DayOfYearOf(year, month, day))].Rating;
    return d;
}

std::vector<DueReminder> ScheduleReminders(const std::vector<ReminderDay>& days,
                                           const ReminderOption& option)
{
    std::vector<DueReminder> out;
    for (const ReminderDay& day : days)
        if (!option.BestDaysOnly || day.Rating == BestDayRating)
            DayReminders(out, day, option);
    std::stable_sort(out.begin(), out.end(),
                     [](const DueReminder& a, const DueReminder& b) { return a.At < b.At; });
    return out;
}
