// SPDX-License-Identifier: GPL-3.0-or-later
#include "viewrules/reminders.h"

#include "astro/astronomy.h"
#include "calendar/calendar.h"
#include "viewrules/daypanel.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {
constexpr double MinutesTolerance = 1e-6;

// The engine at Alexandria, LA on standard time, clock texts on the 24-hour clock.
struct Alexandria {
    Astronomy Engine;
    Calendar Cal;
    Alexandria()
    {
        Engine.Site.SetPlace(92.42, 31.25, 6);
        Engine.Site.AMPM = false;
    }
    ReminderDay Day(int y, int m, int d) { return ReminderDayAt(Engine, Cal, 0, y, m, d); }
};

// The windows the day panel's tool tips give for the majors and the minors, and the sun's
// texts, by the event they belong to.
std::vector<std::pair<ReminderEvent, std::string>> ShownEvents(const DayForecast& f)
{
    std::vector<std::pair<ReminderEvent, std::string>> shown;
    for (int label : {0, 2})
        shown.emplace_back(ReminderEvent::MajorPeriod, LabelToolTip(label, f, false));
    for (int label : {4, 5})
        if (LabelToolTip(label, f, false) != " ****** ")
            shown.emplace_back(ReminderEvent::MinorPeriod, LabelToolTip(label, f, false));
    shown.emplace_back(ReminderEvent::Sunrise, f.SunriseText);
    shown.emplace_back(ReminderEvent::Sunset, f.SunsetText);
    return shown;
}

std::string AsShown(const DueReminder& r)
{
    const bool period =
        r.Event == ReminderEvent::MajorPeriod || r.Event == ReminderEvent::MinorPeriod;
    return period ? " " + r.StartClock + " to " + r.EndClock + " " : r.StartClock;
}
} // namespace

// Every period the day panel shows and the sunrise and sunset get a reminder the lead time
// before they start, today's and tomorrow's in the order they fall due; a long lead makes
// some of tomorrow's due today.
TEST(ReminderSchedule, EveryShownEventLeadMinutesBeforeItStarts)
{
    Alexandria here;
    const std::vector<ReminderDay> days = {here.Day(2024, 3, 12), here.Day(2024, 3, 13)};
    for (const int lead : {1, 30, LongestReminderLead}) {
        const ReminderOption all{
            .Majors = true, .Minors = true, .SunEvents = true, .LeadMinutes = std::int16_t(lead)};
        const std::vector<DueReminder> due = ScheduleReminders(days, all);
        std::vector<std::pair<ReminderEvent, std::string>> expected, got;
        for (const ReminderDay& d : days)
            for (const auto& e : ShownEvents(d.Forecast))
                expected.push_back(e);
        int tomorrowsDueToday = 0;
        for (std::size_t i = 0; i < due.size(); ++i) {
            got.emplace_back(due[i].Event, AsShown(due[i]));
            EXPECT_NEAR((due[i].Start - due[i].At) * MinutesPerDay, lead, MinutesTolerance);
            if (i > 0) {
                EXPECT_LE(due[i - 1].At, due[i].At);
            }
            tomorrowsDueToday += due[i].At < days[1].J0 && due[i].Start >= days[1].J0;
        }
        std::sort(expected.begin(), expected.end());
        std::sort(got.begin(), got.end());
        EXPECT_EQ(got, expected) << lead;
        if (lead != 30) {
            EXPECT_EQ(tomorrowsDueToday > 0, lead == LongestReminderLead) << lead;
        }
    }
}

// "Best days only" keeps a Best day's two major reminders and drops every other day's; a day
// without a second minor period gets one minor reminder.
TEST(ReminderSchedule, BestDaysOnlyAndDaysWithOneMinor)
{
    Alexandria here;
    int best = 0;
    for (int d = 1; d <= 31; ++d) {
        const ReminderDay day = here.Day(2024, 5, d);
        const bool isBest = day.Rating == BestDayRating;
        best += isBest;
        EXPECT_EQ(ScheduleReminders({day}, {.Majors = true, .BestDaysOnly = true}).size(),
                  isBest ? 2u : 0u)
            << d;
        EXPECT_EQ(ScheduleReminders({day}, {.Minors = true}).size(),
                  day.Forecast.Minor2 < 0 ? 1u : 2u)
            << d;
    }
    EXPECT_GT(best, 0);
    EXPECT_LT(best, 31);
}
