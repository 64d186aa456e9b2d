// SPDX-License-Identifier: GPL-3.0-or-later
// The units of the day the program counts in: the hour bar, --hour and the daylight bias count
// minutes, stored times count seconds, and date serials count days from 30 December 1899 0h.
#pragma once

#include <chrono>

constexpr int MinutesPerHour = 60;
constexpr int MinutesPerDay = 24 * MinutesPerHour;
constexpr int NoonMinutes = 12 * MinutesPerHour; // where the hour bar and --hour start a day
constexpr int SecondsPerMinute = 60;
constexpr int SecondsPerHour = MinutesPerHour * SecondsPerMinute;
constexpr int SecondsPerDay = MinutesPerDay * SecondsPerMinute;

// Day 0 of the date serial numbers.
constexpr std::chrono::sys_days SerialDayZero{std::chrono::year{1899} / std::chrono::December / 30};

constexpr double MinutesToHours(double minutes) { return minutes / MinutesPerHour; }
constexpr double MinutesToDays(double minutes) { return minutes / MinutesPerDay; }
