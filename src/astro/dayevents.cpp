// The two drivers of the rise/transit/set search: the Moon's and the Sun's events of one
// local day, in local clock hours.
#include "astro/astronomy.h"
#include "astro/mathutil.h"

#include <algorithm>
#include <cmath>

namespace {
// h0 for the Moon: 0.7275 x horizontal parallax - 0.57 degrees (Meeus ch. 15).
constexpr double MoonRefraction = 0.009948376736367668;
// h0 for sunrise and sunset: -50 arcminutes.
constexpr double SunriseAltitude = -0.01454440461552189;

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

// Local clock hours of an event at utHours from 0h UT of the day at J0, with the clock's offset
// at that moment.
double Astronomy::LocalHours(double J0, double utHours) const
{
    return WrapInto(utHours - 24.0 * Site.ClockDaysAt(J0 + utHours / 24.0), 24.0);
}

RiseTransitSet Astronomy::InLocalClock(double J0, RiseTransitSet e) const
{
    e.RiseTime = LocalHours(J0, e.RiseTime);
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
void Astronomy::SettleMoonEventsAtMidnight(double J0, RiseTransitSet& today)
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
    const RiseTransitSet next = FindClockDayEvents(MoonSearch(J0 + 1.0));
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
    SettleMoonEventsAtMidnight(J0, found);
    MoonEventRecord& e = Forecast.MoonEvents;
    e = InLocalClock(J0, found);
    MoonRiseHour = e.RiseTime;
    MoonTransitHour = e.TransitTime;
    MoonSetHour = e.SetTime;
}

// The lower transit is the upper transit seen from the opposite meridian: the same search with
// the longitude turned by 180 degrees.
bool Astronomy::MoonLowerTransitInDay(double jd)
{
    EventSearch s = MoonSearch(JulianDay0(jd));
    s.Longitude += s.Longitude > 0.0 ? -180.0 : 180.0;
    return FindClockDayEvents(s).TransitFlag == EventFlag::InDay;
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
    for (SunRow r : SunRows) {
        // Each twilight row lies 6 degrees below the one before.
        s.Altitude = r == SunRow::Horizon ? SunriseAltitude : -6.0 * int(r) * DegToRad;
        // Twilights decide the local day with the standard zone.
        s.ZoneHours = Site.CurTimeZone;
        const bool clockDay = r == SunRow::Horizon || Site.TwilightsInClockDay;
        Forecast.SunEvents[r] = InLocalClock(J0, clockDay ? FindClockDayEvents(s) : FindEvents(s));
    }
}
