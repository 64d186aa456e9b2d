// SPDX-License-Identifier: GPL-3.0-or-later
// What a location's reminders tell of: which of the day's events, how long before each, and
// on which days. The desktop program sends them while it runs.
#pragma once

#include <cstdint>

// The lead times the options offer, in minutes.
constexpr int ShortestReminderLead = 1;
constexpr int LongestReminderLead = 12 * 60;
constexpr int DefaultReminderLead = 30;

struct ReminderOption {
    bool Majors = false;    // before each major period starts
    bool Minors = false;    // before each minor period starts
    bool SunEvents = false; // before sunrise and sunset
    std::int16_t LeadMinutes = DefaultReminderLead;
    bool BestDaysOnly = false; // only on days rated "Best"; else every day

    bool Any() const { return Majors || Minors || SunEvents; }
    friend bool operator==(const ReminderOption&, const ReminderOption&) = default;
};
