// SPDX-License-Identifier: GPL-3.0-or-later
// Where and when the engine works: the current location's working values and the chosen
// moment of the day. Longitudes are degrees positive west, latitudes positive north, zones
// hours west of Greenwich; universal time = local clock time + ZoneDays + DstOffsetDays, or
// under "Local Clock" local clock time less the place's own offset at that moment.
#pragma once

#include "astro/zonerules.h"

#include <cstdint>

// The time modes of the "Time Formats" menu.
constexpr std::int16_t DaylightSavingsMode = 0;
constexpr std::int16_t StandardMode = 1;
constexpr std::int16_t LocalClockMode = 3;

struct Observer {
    double CurLongitude = 0.0;
    double CurLatitude = 0.0;
    std::int16_t CurTimeZone = 0;
    double ZoneDays = 0.0;
    double DstOffsetDays = 0.0; // -1/24 while "Daylight Savings" is chosen
    // The windows decide which twilights fall in a day with the standard zone; the command
    // line, which reports the events of the clock's own day, sets this.
    bool TwilightsInClockDay = false;
    std::int16_t TimeFormats = 1;
    double HourInstant = 0.5; // hour bar / 1440 + ZoneDays
    bool AMPM = true;         // clock texts with " AM"/" PM"
    // Under "Local Clock" the place's own offsets, which then stand for ZoneDays +
    // DstOffsetDays day by day and moment by moment; empty in the two fixed modes.
    ZoneRules Clock;

    // The days that turn a local clock time into UT, at the UT instant jd.
    double ClockDaysAt(double jd) const
    {
        return Clock.Empty() ? ZoneDays + DstOffsetDays : -Clock.MinutesAt(jd) / 1440.0;
    }
    // The local clock Julian day of the UT instant jd.
    double LocalOf(double jd) const { return jd - ClockDaysAt(jd); }
    // The UT instant of the local clock Julian day local.
    double InstantOf(double local) const
    {
        return Clock.Empty() ? local + ZoneDays + DstOffsetDays : Clock.InstantOf(local);
    }

    // The local day at 0h J0 on the clock: the days that turn its clock into UT at its start
    // and at its end, which differ on a day 23 or 25 hours long, and the UT instant where the
    // clock changes on it.
    struct ClockDay {
        double Start = 0.0, End = 0.0;
        double Change = 0.0;
    };
    ClockDay ClockOn(double J0) const
    {
        const double start = InstantOf(J0), end = InstantOf(J0 + 1.0);
        const std::vector<double> changes = Clock.ChangesBetween(start, end);
        return {start - J0, end - J0 - 1.0, changes.empty() ? end : changes.front()};
    }

    // Moves to a place in standard time; daylight saving and the chosen clock hour stay as they
    // are, so the instant of the chosen hour moves with the zone.
    void SetPlace(double lonWest, double latNorth, std::int16_t zone)
    {
        CurLongitude = lonWest;
        CurLatitude = latNorth;
        CurTimeZone = zone;
        HourInstant += zone / 24.0 - ZoneDays;
        ZoneDays = zone / 24.0;
    }
};
