// SPDX-License-Identifier: GPL-3.0-or-later
// The engine and the calendar of one location, walked day by day: the year tables are built
// once per year, each day's forecast once per day.
#pragma once

#include "astro/astronomy.h"
#include "calendar/calendar.h"
#include "cli/common/dayrow.h"
#include "text/timeunits.h"

#include <string>
#include <vector>

struct ForecastPlace {
    double Longitude = 0.0; // degrees west
    double Latitude = 0.0;  // degrees north
    int TimeZone = 0;       // hours west of Greenwich
    double DstOffsetDays = 0.0;
    bool AmPm = true;
    int HourMinutes = NoonMinutes; // the chosen moment of the day
    ZoneRules Clock;  // the place's own clock ("Local Clock"); empty: zone and DstOffsetDays
    std::string Name; // what the place is called, for what records it
};

class ForecastRun {
public:
    explicit ForecastRun(const ForecastPlace& place);

    DayRow Day(int year, int month, int day);
    // The year's phases, perigees and apogees, greatest declinations and seasons, in time order.
    std::vector<EventRow> Events(int year);

    Astronomy Engine;
    Calendar Cal;
    std::int16_t SouthernHemisphere = 0;

private:
    void UseYear(int year);
};
