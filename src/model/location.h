// SPDX-License-Identifier: GPL-3.0-or-later
// A user location and the ten the program keeps. Longitudes are degrees positive west,
// latitudes positive north, time zones hours west of Greenwich (5 for US Eastern). A location
// may also name its zone of the tz database, whose offsets the "Local Clock" mode follows.
#pragma once

#include "model/reminder.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <string>

struct Location {
    std::string Name;
    double Longitude = 0.0;
    double Latitude = 0.0;
    std::int16_t TimeZone = 0;
    std::string TzName; // "America/Chicago"; empty for a whole-hour zone only
    ReminderOption Reminder;

    friend bool operator==(const Location&, const Location&) = default;
};

constexpr int LocationCount = 10;
// Indexed 1..10 as the menus number them; entry 0 is unused.
using LocationTable = std::array<Location, LocationCount + 1>;

// The default location's number from its stored text; 1 when the text names none of the ten.
inline std::int16_t DefaultLocationNumber(const std::string& defLoc)
{
    const int n = std::atoi(defLoc.c_str());
    return static_cast<std::int16_t>(std::clamp(n, 1, LocationCount) == n ? n : 1);
}
