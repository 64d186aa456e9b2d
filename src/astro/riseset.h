// Results of the rise, transit and set search (Meeus ch. 15) for one local day.
#pragma once

#include <array>
#include <cstddef>

// The event search stops when a correction falls below this many days (8.6 seconds).
constexpr double EventTolerance = 0.0001;

// Whether an event the search found falls in the local day asked for.
enum class EventFlag { InDay, OtherDay };

// How a body stands to the altitude of its events through the day.
enum class HorizonState { Crosses, StaysAbove, StaysBelow };

// A body's rise, transit and set at one altitude: their times in hours, where the body stands
// at each (radians), and whether each falls in the day. Rise and set are searched for only
// when the body crosses the altitude; otherwise they lie half a day either side of the
// transit's first estimate, with no azimuths.
struct RiseTransitSet {
    double RiseTime = 0.0;
    double TransitTime = 0.0;
    double SetTime = 0.0;
    double RiseAzimuth = 0.0;
    double TransitAltitude = 0.0;
    double SetAzimuth = 0.0;
    EventFlag RiseFlag = EventFlag::OtherDay;
    EventFlag TransitFlag = EventFlag::OtherDay;
    EventFlag SetFlag = EventFlag::OtherDay;
    HorizonState AboveHorizonState = HorizonState::Crosses;
};

// The Moon's events of one local day, in local clock hours [0, 24).
using MoonEventRecord = RiseTransitSet;

// The rows of the Sun's table, from the horizon down: sunrise and sunset, then the dawn and
// dusk of the civil, nautical and astronomical twilights.
enum class SunRow { Horizon, Civil, Nautical, Astronomical };
constexpr std::array<SunRow, 4> SunRows = {SunRow::Horizon, SunRow::Civil, SunRow::Nautical,
                                           SunRow::Astronomical};

// The Sun's events of one local day in local clock hours [0, 24): Horizon holds sunrise, the
// Sun's transit and sunset with the sunrise and sunset azimuths and the transit altitude.
struct SunEventTable {
    RiseTransitSet Horizon;
    RiseTransitSet Civil;
    RiseTransitSet Nautical;
    RiseTransitSet Astronomical;

    const RiseTransitSet& operator[](SunRow r) const { return this->*Rows[std::size_t(r)]; }
    RiseTransitSet& operator[](SunRow r) { return this->*Rows[std::size_t(r)]; }

private:
    static constexpr std::array<RiseTransitSet SunEventTable::*, 4> Rows = {
        &SunEventTable::Horizon, &SunEventTable::Civil, &SunEventTable::Nautical,
        &SunEventTable::Astronomical};
};
