// SPDX-License-Identifier: GPL-3.0-or-later
// The two drivers of the rise/transit/set search: the Moon's and the Sun's events of one
// local day, in local clock hours.
#include "astro/astronomy.h"
#include "astro/mathutil.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace {
// h0 for the Moon: 0.7275 x horizontal parallax - 0.57 degrees (Meeus ch. 15).
constexpr double MoonRefraction = 0.009948376736367668;
// Sunrise and sunset: the Sun's upper limb 34 arcminutes below the horizon as seen from the
// place, which is its centre about 50 arcminutes below the horizon of the Earth's centre; the
// twilights: its centre seen from the place. The Sun's horizontal parallax at 1 AU (8.794")
// and its radius in Earth radii give both the parallax and the semidiameter of any day.
constexpr double LimbRefraction = 34.0 / 60.0 * DegToRad;
constexpr double SunParallaxAtOneAu = 8.794 / 3600.0 * DegToRad;
constexpr double SunRadiusInEarthRadii = 109.12;

// How near the altitude of its events a body's highest or lowest point of the day may come
// before the day is searched on the body's altitude itself: further off, its crossings lie far
// enough from the transits for the interpolated search to find them.
constexpr double GrazingMargin = 2.0 * DegToRad;

// Whether a body at latitude phi, whose declination lies between those of the days before and
// after (or near them), may culminate above or below within the margin of h0.
bool MayGraze(double phi, std::array<double, 3> delta, double h0)
{
    const auto [lo, hi] = std::minmax({delta[0], delta[1], delta[2]});
    const double dlo = lo - GrazingMargin, dhi = hi + GrazingMargin;
    const auto upper = [&](double d) { return Pi / 2.0 - std::fabs(phi - d); };
    const auto lower = [&](double d) { return std::fabs(phi + d) - Pi / 2.0; };
    const double upperLow = std::min(upper(dlo), upper(dhi));
    const double upperHigh = dlo <= phi && phi <= dhi ? Pi / 2.0 : std::max(upper(dlo), upper(dhi));
    const double lowerLow =
        dlo <= -phi && -phi <= dhi ? -Pi / 2.0 : std::min(lower(dlo), lower(dhi));
    const double lowerHigh = std::max(lower(dlo), lower(dhi));
    const auto near = [&](double low, double high) {
        return low - GrazingMargin <= h0 && h0 <= high + GrazingMargin;
    };
    return near(upperLow, upperHigh) || near(lowerLow, lowerHigh);
}

// Beyond this latitude the Moon's rise or set can come round again in less than a day (its
// declination then moves its rising hour back by more than the Moon's daily lag), so that one
// just after the day's start may have a twin just before its end.
constexpr double TwinLatitude = 60.0;
constexpr double TwinWindowHours = 2.0;

// Whether the day of a search that starts z hours from 0h UT may hold a second rise or set.
bool MayCrossTwice(const RiseTransitSet& e, double latitudeDeg, double z)
{
    const auto nearStart = [&](double hours, EventFlag flag) {
        return flag == EventFlag::InDay && hours - z < TwinWindowHours;
    };
    return std::fabs(latitudeDeg) > TwinLatitude && e.AboveHorizonState == HorizonState::Crosses &&
           (nearStart(e.RiseTime, e.RiseFlag) || nearStart(e.SetTime, e.SetFlag));
}

// The day's rise, set and state from the crossings found in it on the body's altitude: the
// first rise and the first set; without one the flag says so and the time stays the search's.
void TakeCrossings(RiseTransitSet& e, const std::vector<AltitudeCrossing>& found, double J0,
                   bool aboveAtStart)
{
    e.RiseFlag = e.SetFlag = e.LaterRiseFlag = e.LaterSetFlag = EventFlag::OtherDay;
    for (const AltitudeCrossing& c : found) {
        const double hours = 24.0 * (c.At.JD - J0);
        auto [time, azimuth, flag, later, laterFlag] =
            c.Rising
                ? std::tie(e.RiseTime, e.RiseAzimuth, e.RiseFlag, e.LaterRiseTime, e.LaterRiseFlag)
                : std::tie(e.SetTime, e.SetAzimuth, e.SetFlag, e.LaterSetTime, e.LaterSetFlag);
        if (flag == EventFlag::InDay) {
            later = hours;
            laterFlag = EventFlag::InDay;
        } else {
            time = hours;
            azimuth = c.At.Azimuth;
            flag = EventFlag::InDay;
        }
    }
    e.AboveHorizonState = !found.empty() ? HorizonState::Crosses
                          : aboveAtStart ? HorizonState::StaysAbove
                                         : HorizonState::StaysBelow;
}

// The three events of a search's result, for the code that treats them alike.
struct EventFields {
    double RiseTransitSet::*Time;
    double RiseTransitSet::*Angle; // the transit's altitude, a rise's or a set's azimuth
    EventFlag RiseTransitSet::*Flag;
    bool OnlyWhenCrossing; // searched for only when the body crosses the altitude
};
constexpr std::array<EventFields, 3> Events = {
    {{&RiseTransitSet::TransitTime, &RiseTransitSet::TransitAltitude, &RiseTransitSet::TransitFlag,
      false},
     {&RiseTransitSet::RiseTime, &RiseTransitSet::RiseAzimuth, &RiseTransitSet::RiseFlag, true},
     {&RiseTransitSet::SetTime, &RiseTransitSet::SetAzimuth, &RiseTransitSet::SetFlag, true}}};

// The cached entry for jd, or a fresh one filled by compute in place of the oldest.
template <typename Cache, typename Compute>
const auto& Cached(Cache& cache, double jd, Compute compute)
{
    for (const auto& e : cache.Entries)
        if (e.JD == jd)
            return e;
    auto& e = cache.Entries[cache.Next];
    cache.Next = (cache.Next + 1) % cache.Entries.size();
    e.JD = jd;
    compute(e);
    return e;
}
} // namespace

const Astronomy::DayPosition& Astronomy::SunAtDay(double jd)
{
    return Cached(SunDays, jd, [&](DayPosition& e) {
        const SunPlace sun = SunPosition(jd);
        e.Place = {sun.Alpha, sun.Delta};
        e.Parallax = SunParallaxAtOneAu / sun.R;
    });
}

const Astronomy::DayPosition& Astronomy::MoonAtDay(double jd)
{
    return Cached(MoonDays, jd, [&](DayPosition& e) {
        const MoonPlace moon = MoonPosition(jd);
        e.Place = {moon.Alpha, moon.Delta};
        e.Parallax = moon.Parallax;
    });
}

// The body at UT instant t from its position at the same dynamical instant. The Moon's altitude
// is taken less 0.7275 of its parallax, so that its events lie at -0.57 degrees on it: its upper
// limb as seen from the place (Meeus ch. 15).
SkyPoint Astronomy::SunSeenAt(double t)
{
    const SunPlace sun = SunPosition(t + DeltaTSeconds(t) / 86400.0);
    const Horizontal h =
        HorizontalPosition(t, sun.Alpha, sun.Delta, Site.CurLatitude, Site.CurLongitude);
    return {t, h.Azimuth, h.Altitude};
}

SkyPoint Astronomy::MoonSeenAt(double t)
{
    const MoonPlace moon = MoonPosition(t + DeltaTSeconds(t) / 86400.0);
    const Horizontal h =
        HorizontalPosition(t, moon.Alpha, moon.Delta, Site.CurLatitude, Site.CurLongitude);
    return {t, h.Azimuth, h.Altitude - 0.7275 * moon.Parallax};
}

// Where the search's body may graze its altitude, the day's rises and sets are found on the
// body's altitude itself; track holds it over the day (made on first need). The day runs from
// UT instant from to to.
void Astronomy::SettleGrazing(const EventSearch& s, RiseTransitSet& e, const SkyAt& sky, double h0,
                              std::vector<SkyPoint>& track, const std::vector<double>& instants,
                              double from, double to)
{
    if (!MayGraze(s.Latitude * DegToRad, {s.Yesterday.Delta, s.Today.Delta, s.Tomorrow.Delta},
                  s.Altitude) &&
        !MayCrossTwice(e, s.Latitude, s.ZoneHours))
        return;
    if (track.empty())
        track = TrackAltitude(sky, instants.front(), instants.back(), instants);
    const auto start =
        std::find_if(track.begin(), track.end(), [&](const SkyPoint& p) { return p.JD == from; });
    TakeCrossings(e, CrossingsOf(track, sky, h0, from, to), s.J0, start->Altitude > h0);
}

// Local clock hours of an event at utHours from 0h UT of the day at J0, with the clock's offset
// at that moment.
double Astronomy::LocalHours(double J0, double utHours) const
{
    return WrapInto(utHours - 24.0 * Site.ClockDaysAt(J0 + utHours / 24.0), 24.0);
}

RiseTransitSet Astronomy::InLocalClock(double J0, RiseTransitSet e) const
{
    e.RiseTime = LocalHours(J0, e.RiseTime);
    e.LaterRiseTime = LocalHours(J0, e.LaterRiseTime);
    e.LaterSetTime = LocalHours(J0, e.LaterSetTime);
    e.TransitTime = LocalHours(J0, e.TransitTime);
    e.SetTime = LocalHours(J0, e.SetTime);
    return e;
}

// The search over the local day at 0h J0 on the clock. On a day whose clock changes (23 or 25
// hours long) it runs once with the offset before the change and once with the offset after
// it; each event comes from the run whose offset holds at the event, so an event in the
// repeated or the skipped hour is found once, and none of the day's hours is left out.
RiseTransitSet Astronomy::FindClockDayEvents(EventSearch s)
{
    const Observer::ClockDay day = Site.ClockOn(s.J0);
    s.ZoneHours = 24.0 * day.Start;
    RiseTransitSet found = FindEvents(s);
    if (day.Start == day.End)
        return found;
    s.ZoneHours = 24.0 * day.End;
    const RiseTransitSet after = FindEvents(s);
    const double change = 24.0 * (day.Change - s.J0);
    const double end = 24.0 * (1.0 + day.End);
    for (const EventFields& e : Events) {
        if (found.*e.Flag == EventFlag::InDay && found.*e.Time < change)
            continue;
        const bool later =
            after.*e.Flag == EventFlag::InDay && after.*e.Time >= change && after.*e.Time < end;
        found.*e.Time = later ? after.*e.Time : found.*e.Time;
        found.*e.Angle = later ? after.*e.Angle : found.*e.Angle;
        found.*e.Flag = later ? EventFlag::InDay : EventFlag::OtherDay;
    }
    return found;
}

Astronomy::EventSearch Astronomy::MoonSearch(double J0)
{
    const Equatorial yesterday = MoonAtDay(J0 - 1.0).Place;
    const DayPosition today = MoonAtDay(J0); // a copy: the next day may take its cache entry
    const Equatorial tomorrow = MoonAtDay(J0 + 1.0).Place;
    return {.J0 = J0,
            .Longitude = Site.CurLongitude,
            .Latitude = Site.CurLatitude,
            .Yesterday = yesterday,
            .Today = today.Place,
            .Tomorrow = tomorrow,
            .Altitude = 0.7275 * today.Parallax - MoonRefraction};
}

// Each day's search interpolates its own three days of positions, so two neighbouring days
// can disagree by seconds on which side of their common midnight an event falls, and then
// both or neither would report it. An event that close to the end of the day is taken as the
// next day's search finds it: the day it falls in by that search reports it, the other not.
void Astronomy::SettleMoonEventsAtMidnight(double J0, RiseTransitSet& today, SearchOfDay search)
{
    const double Z = Site.ClockOn(J0).End; // the next day starts at J0 + 1 + Z
    // Rise and set are events only where the search refined them (the Moon crosses h0).
    const auto searched = [](const RiseTransitSet& r, const EventFields& e) {
        return !e.OnlyWhenCrossing || r.AboveHorizonState == HorizonState::Crosses;
    };
    const auto nearEnd = [&](const EventFields& e) {
        return searched(today, e) &&
               std::fabs(today.*e.Time / 24.0 - Z - 1.0) < 2.0 * EventTolerance;
    };
    if (std::none_of(Events.begin(), Events.end(), nearEnd))
        return;
    const RiseTransitSet next = FindClockDayEvents((this->*search)(J0 + 1.0));
    for (const EventFields& e : Events) {
        const double d = next.*e.Time / 24.0 - Z; // from the start of the next day
        if (!nearEnd(e) || !searched(next, e) || std::fabs(d) >= 2.0 * EventTolerance)
            continue;
        today.*e.Time = next.*e.Time + 24.0;
        today.*e.Angle = next.*e.Angle;
        today.*e.Flag = d < 0.0 ? EventFlag::InDay : EventFlag::OtherDay;
    }
}

void Astronomy::MoonEventsForDay(double jd)
{
    const double J0 = JulianDay0(jd);
    RiseTransitSet found = FindClockDayEvents(MoonSearch(J0));
    SettleMoonEventsAtMidnight(J0, found, &Astronomy::MoonSearch);
    const Observer::ClockDay day = Site.ClockOn(J0);
    const double from = J0 + day.Start, to = (J0 + 1.0) + day.End;
    std::vector<SkyPoint> track;
    EventSearch s = MoonSearch(J0);
    s.ZoneHours = 24.0 * day.Start;
    SettleGrazing(
        s, found, [this](double t) { return MoonSeenAt(t); }, -MoonRefraction, track, {from, to},
        from, to);
    MoonEventRecord& e = Forecast.MoonEvents;
    e = InLocalClock(J0, found);
    MoonRiseHour = e.RiseTime;
    MoonTransitHour = e.TransitTime;
    MoonSetHour = e.SetTime;
}

// The lower transit is the upper transit seen from the opposite meridian: the same search with
// the longitude turned by 180 degrees.
Astronomy::EventSearch Astronomy::LowerTransitSearch(double J0)
{
    EventSearch s = MoonSearch(J0);
    s.Longitude += s.Longitude > 0.0 ? -180.0 : 180.0;
    return s;
}

// Settled at midnight as the other moon events are, so that neighbouring days never both
// claim a lower transit, nor both miss it.
bool Astronomy::MoonLowerTransitInDay(double jd)
{
    const double J0 = JulianDay0(jd);
    RiseTransitSet found = FindClockDayEvents(LowerTransitSearch(J0));
    SettleMoonEventsAtMidnight(J0, found, &Astronomy::LowerTransitSearch);
    return found.TransitFlag == EventFlag::InDay;
}

void Astronomy::SunEventsForDay(double jd)
{
    const double J0 = JulianDay0(jd);
    EventSearch s{.J0 = J0,
                  .Longitude = Site.CurLongitude,
                  .Latitude = Site.CurLatitude,
                  .Yesterday = SunAtDay(J0 - 1.0).Place,
                  .Today = SunAtDay(J0).Place,
                  .Tomorrow = SunAtDay(J0 + 1.0).Place};
    // The starts and ends of the local days of the clock and of the standard zone.
    const Observer::ClockDay day = Site.ClockOn(J0);
    const double clockStart = J0 + day.Start, clockEnd = (J0 + 1.0) + day.End,
                 zoneStart = J0 + Site.CurTimeZone / 24.0;
    std::vector<double> instants = {clockStart, zoneStart, clockEnd, zoneStart + 1.0};
    std::sort(instants.begin(), instants.end());
    std::vector<SkyPoint> track;
    const double parallax = SunAtDay(J0).Parallax;
    const double semidiameter = SunRadiusInEarthRadii * parallax;
    for (SunRow r : SunRows) {
        // Each twilight row lies 6 degrees below the one before.
        s.Altitude = parallax + (r == SunRow::Horizon ? -LimbRefraction - semidiameter
                                                      : -6.0 * int(r) * DegToRad);
        // Twilights decide the local day with the standard zone.
        const bool clockDay = r == SunRow::Horizon || Site.TwilightsInClockDay;
        s.ZoneHours = clockDay ? 24.0 * day.Start : Site.CurTimeZone;
        RiseTransitSet found = clockDay ? FindClockDayEvents(s) : FindEvents(s);
        const double from = clockDay ? clockStart : zoneStart;
        const double to = clockDay ? clockEnd : zoneStart + 1.0;
        SettleGrazing(
            s, found, [this](double t) { return SunSeenAt(t); }, s.Altitude, track, instants, from,
            to);
        Forecast.SunEvents[r] = InLocalClock(J0, found);
    }
}
