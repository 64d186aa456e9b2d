// SPDX-License-Identifier: GPL-3.0-or-later
// Which reminders a location's option asks for on given days, and when each is due: a set
// number of minutes before each period starts, before sunrise and before sunset. Times are
// local clock Julian days of the location, as the engine's day forecast gives them.
#pragma once

#include "astro/dayforecast.h"
#include "model/reminder.h"

#include <cstdint>
#include <string>
#include <vector>

class Astronomy;
class Calendar;

// The rating the "best days only" reminders keep: the legend's "Best".
constexpr std::int16_t BestDayRating = 4;

enum class ReminderEvent { MajorPeriod, MinorPeriod, Sunrise, Sunset };

// One local day for the schedule: its local clock Julian day at 0h, its forecast and rating.
struct ReminderDay {
    double J0 = 0.0;
    DayForecast Forecast;
    std::int16_t Rating = 0;
};

struct DueReminder {
    ReminderEvent Event = ReminderEvent::MajorPeriod;
    double At = 0.0;    // local clock Julian day it is due
    double Start = 0.0; // local clock Julian day of the event (a period's start)
    // The event's clock times on the 24-hour clock ("17:05"); a period's start and end, or
    // the sunrise or sunset twice.
    std::string StartClock, EndClock;
    std::int16_t Rating = 0; // of the event's day
};

// The day of the local date at 0h J0, with the engine at the location (its observer set) and
// the rating from the calendar's year table, whose tables are set for J0's year when they hold
// another.
ReminderDay ReminderDayAt(Astronomy& engine, Calendar& cal, std::int16_t southernHemisphere,
                          int year, int month, int day);

// The reminders the option asks for on the days, ordered by when they are due.
std::vector<DueReminder> ScheduleReminders(const std::vector<ReminderDay>& days,
                                           const ReminderOption& option);
