// The two drivers of the rise/transit/set search: the Moon's and the Sun's events of one
// local day, in local clock hours.
#include "astro/astronomy.h"
#include "astro/mathutil.h"

#include <cmath>

namespace {
// h0 for the Moon: 0.7275 x horizontal parallax - 0.57 degrees (Meeus ch. 15).
constexpr double MoonRefraction = 0.009948376736367668;
// h0 for sunrise and sunset: -50 arcminutes.
constexpr double SunriseAltitude = -0.01454440461552189;

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
        e.Alpha = sun.Alpha;
        e.Delta = sun.Delta;
    });
}

const Astronomy::DayPosition& Astronomy::MoonAtDay(double jd)
{
    return Cached(MoonDays, jd, [&](DayPosition& e) {
        const MoonPlace moon = MoonPosition(jd);
        e.Alpha = moon.Alpha;
        e.Delta = moon.Delta;
        e.Parallax = moon.Parallax;
    });
}

double Astronomy::LocalHours(double utHours) const
{
    return WrapInto(utHours - 24.0 * (Site.ZoneDays + Site.DstOffsetDays), 24.0);
}

void Astronomy::PrepareEventSearch(double J0, double altitude, double zoneHours)
{
    EventDayJD = J0;
    EventLongitude = Site.CurLongitude;
    EventLatitude = Site.CurLatitude;
    EventAltitude = altitude;
    EventZoneHours = zoneHours;
}

void Astronomy::SearchMoonEvents(double J0)
{
    double parallax = 0.0;
    for (int i = 1; i <= 3; ++i) {
        const DayPosition& p = MoonAtDay(J0 + i - 2);
        EventRA[std::size_t(i)] = p.Alpha;
        EventDec[std::size_t(i)] = p.Delta;
        if (i == 2)
            parallax = p.Parallax;
    }
    PrepareEventSearch(J0, 0.7275 * parallax - MoonRefraction,
                       Site.CurTimeZone + 24.0 * Site.DstOffsetDays);
    FindEvents();
}

// Each day's search interpolates its own three days of positions, so two neighbouring days
// can disagree by seconds on which side of their common midnight an event falls, and then
// both or neither would report it. An event that close to the end of the day is taken as the
// next day's search finds it: the day it falls in by that search reports it, the other not.
void Astronomy::SettleMoonEventsAtMidnight(double J0)
{
    const double Z = EventZoneHours / 24.0;
    // Rise and set are events only where the search refined them (the Moon crosses h0).
    const auto nearEnd = [&](std::size_t k) {
        return (k == 0 || AboveHorizonState == 0) &&
               std::fabs(PositionResult[k] / 24.0 - Z - 1.0) < 2.0 * EventTolerance;
    };
    if (!nearEnd(0) && !nearEnd(1) && !nearEnd(2))
        return;
    const std::array<double, 20> today = PositionResult;
    const std::int16_t state = AboveHorizonState;
    SearchMoonEvents(J0 + 1.0);
    const std::array<double, 20> next = PositionResult;
    const bool nextCrosses = AboveHorizonState == 0;
    PositionResult = today;
    AboveHorizonState = state;
    for (std::size_t k = 0; k < 3; ++k) {
        const double d = next[k] / 24.0 - Z; // from the start of the next day
        if (!nearEnd(k) || (k != 0 && !nextCrosses) || std::fabs(d) >= 2.0 * EventTolerance)
            continue;
        PositionResult[k] = next[k] + 24.0;
        PositionResult[3 + k] = next[3 + k];
        PositionResult[9 + k] = d < 0.0 ? 0.0 : 2.0;
    }
}

void Astronomy::MoonEventsForDay(double jd)
{
    const double J0 = JulianDay0(jd);
    SearchMoonEvents(J0);
    SettleMoonEventsAtMidnight(J0);
    MoonRiseHour = LocalHours(PositionResult[1]);
    MoonTransitHour = LocalHours(PositionResult[0]);
    MoonSetHour = LocalHours(PositionResult[2]);
    MoonEventRecord& e = Forecast.MoonEvents;
    e.RiseTime = MoonRiseHour;
    e.TransitTime = MoonTransitHour;
    e.SetTime = MoonSetHour;
    e.RiseAzimuth = PositionResult[4];
    e.TransitAltitude = PositionResult[3];
    e.SetAzimuth = PositionResult[5];
    e.RiseFlag = static_cast<std::int16_t>(PositionResult[10]);
    e.TransitFlag = static_cast<std::int16_t>(PositionResult[9]);
    e.SetFlag = static_cast<std::int16_t>(PositionResult[11]);
    e.AboveHorizonState = AboveHorizonState;
}

// The lower transit is the upper transit seen from the opposite meridian: the same search with
// the longitude turned by 180 degrees.
bool Astronomy::MoonLowerTransitInDay(double jd)
{
    SearchMoonEvents(JulianDay0(jd));
    EventLongitude += EventLongitude > 0.0 ? -180.0 : 180.0;
    FindEvents();
    return PositionResult[9] == 0.0;
}

void Astronomy::SunEventsForDay(double jd)
{
    const double J0 = JulianDay0(jd);
    for (int i = 1; i <= 3; ++i) {
        const DayPosition& p = SunAtDay(J0 + i - 2);
        EventRA[std::size_t(i)] = p.Alpha;
        EventDec[std::size_t(i)] = p.Delta;
    }
    SunEventTable& s = Forecast.SunEvents;
    for (int r = 0; r <= 3; ++r) {
        // Twilights decide the local day with the standard zone.
        const bool clockDay = r == 0 || Site.TwilightsInClockDay;
        const double zone =
            clockDay ? Site.CurTimeZone + 24.0 * Site.DstOffsetDays : Site.CurTimeZone;
        PrepareEventSearch(J0, r == 0 ? SunriseAltitude : -6.0 * r * DegToRad, zone);
        FindEvents();
        s(r, 0) = LocalHours(PositionResult[1]);
        s(r, 1) = LocalHours(PositionResult[0]);
        s(r, 2) = LocalHours(PositionResult[2]);
        Forecast.SunStatus[std::size_t(r)] = {static_cast<std::int16_t>(PositionResult[10]),
                                              static_cast<std::int16_t>(PositionResult[9]),
                                              static_cast<std::int16_t>(PositionResult[11]),
                                              AboveHorizonState};
        if (r == 0) {
            s(0, 3) = PositionResult[4];
            s(0, 4) = PositionResult[3];
            s(0, 5) = PositionResult[5];
        }
    }
}
