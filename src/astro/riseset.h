// SPDX-License-Identifier: GPL-3.0-or-later
// Results of the rise, transit and set search (Meeus ch. 15) for one local day.
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <vector>

// The event search stops when a correction falls below this many days (8.6 seconds).
constexpr double EventTolerance = 0.0001;

// Whether an event the search found falls in the local day asked for.
enum class EventFlag { InDay, OtherDay };

// How a body stands to the altitude of its events through the day.
enum class HorizonState { Crosses, StaysAbove, StaysBelow };

// A body's rise, transit and set at one altitude: their times in hours, where the body stands
// at each (radians), and whether each falls in the day. Rise and set are searched for only
// when the body crosses the altitude; otherwise they lie half a day either side of the
// transit's first estimate, with no azimuths. Near the poles a body can rise (or set) twice in
// one day: the later one is kept apart, and its flag says whether the day has one.
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
    double LaterRiseTime = 0.0;
    double LaterSetTime = 0.0;
    EventFlag LaterRiseFlag = EventFlag::OtherDay;
    EventFlag LaterSetFlag = EventFlag::OtherDay;
};

// Hours of the local day the body spends above the events' altitude: 24 or 0 for a body that
// never crosses it, otherwise the stretches between the day's rises and sets (a day that ends
// before its set or begins after its rise counts to midnight).
double HoursAbove(const RiseTransitSet& e);

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

// ---- crossings found from the body's altitude itself, where it may graze its altitude ----

// Where a body stands at a UT Julian day (radians, azimuth from north), from the engine's own
// position of that instant; the altitude is the one its events are measured at.
struct SkyPoint {
    double JD = 0.0;
    double Azimuth = 0.0;
    double Altitude = 0.0;
};
using SkyAt = std::function<SkyPoint(double jd)>;

// A body's altitude through a stretch of time: samples at even steps, each turn of the altitude
// between them, and the given instants (the starts and ends of the local days asked about), in
// time order. Between two neighbouring points the altitude only rises or only falls.
std::vector<SkyPoint> TrackAltitude(const SkyAt& sky, double from, double to,
                                    const std::vector<double>& instants);

// One crossing of an altitude: where the body is then, and whether it rises through it.
struct AltitudeCrossing {
    SkyPoint At;
    bool Rising = false;
};
// Every crossing of altitude h0 in [from, to] (instants of the track), refined on the body's
// altitude. A crossing belongs to the stretch by the track's points around it, so two
// stretches that share an end never both claim one crossing, nor both miss it.
std::vector<AltitudeCrossing> CrossingsOf(const std::vector<SkyPoint>& track, const SkyAt& sky,
                                          double h0, double from, double to);
