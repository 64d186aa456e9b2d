// Where and when the engine works: the current location's working values and the chosen
// moment of the day. Longitudes are degrees positive west, latitudes positive north, zones
// hours west of Greenwich; universal time = local clock time + ZoneDays + DstOffsetDays.
#pragma once

#include <cstdint>

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
