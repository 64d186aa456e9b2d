// SPDX-License-Identifier: GPL-3.0-or-later
// One day's forecast at the observer: the Sun's events and sky position, the Moon's events,
// the two major periods centred on the Moon's upper and lower transits and the two minor
// periods between them, and the Moon's phase at the chosen hour.
#include "astro/astronomy.h"
#include "astro/mathutil.h"

#include <cmath>

namespace {
// Half a lunar day, a quarter and three quarters of it, in hours.
constexpr double HalfLunarDay = 12.4166;
constexpr double QuarterLunarDay = 6.2083;
constexpr double ThreeQuarterLunarDay = 18.6249;
const char* const NoPeriod = "*******";
} // namespace

void Astronomy::ComputeSunDay(double jd)
{
    DayForecast& f = Forecast;
    SunEventsForDay(jd);
    const RiseTransitSet& sun = f.SunEvents.Horizon;
    f.SunriseText = Clock(sun.RiseTime);
    f.SunsetText = Clock(sun.SetTime);
    f.DayLength = HoursAbove(sun);

    const double t = ChosenInstant(jd);
    const SunPlace place = SunPosition(t);
    const Horizontal sky =
        HorizontalPosition(t, place.Alpha, place.Delta, Site.CurLatitude, Site.CurLongitude);
    f.SkyPosition.SunAzimuth = sky.Azimuth;
    f.SkyPosition.SunAltitude = sky.Altitude;
}

void Astronomy::ComputeDay(double jd)
{
    ++DaysComputed;
    DayForecast& f = Forecast;
    MoonEventsForDay(jd);
    double T = MoonTransitHour;
    if (f.MoonEvents.TransitFlag != EventFlag::InDay) {
        // No transit of its own: the mean of the neighbouring days' transits.
        const MoonEventRecord today = f.MoonEvents;
        MoonEventsForDay(jd - 1.0);
        const double previous = MoonTransitHour;
        MoonEventsForDay(jd + 1.0);
        const double next = MoonTransitHour;
        f.MoonEvents = today;
        // The mean can pass midnight; clock hours stay in [0, 24).
        T = WrapInto(T + ((next + 24.0) - previous) / 2.0, 24.0);
        MoonTransitHour = T;
        f.Major1Text = "*" + Clock(T) + "*";
    } else {
        f.Major1Text = Clock(T);
    }
    SetPeriods(T);

    const double now = ChosenInstant(jd);
    const MoonPlace moon = MoonPosition(now);
    f.IllumFraction = moon.IllumFraction;
    f.BrightLimbAngle = moon.BrightLimb;
    f.Waxing = f.BrightLimbAngle > 3.14159265358979 ? 1 : 0;
    f.IllumPercent = IllumPercentOf(f.IllumFraction);
    const double alpha = moon.Alpha, delta = moon.Delta;
    const double t = Site.TimeFormats == 2 ? now - 15.0 / 1440.0 : now;
    const Horizontal sky = HorizontalPosition(t, alpha, delta, Site.CurLatitude, Site.CurLongitude);
    f.SkyPosition.MoonAzimuth = sky.Azimuth;
    f.SkyPosition.MoonAltitude = TopocentricAltitude(sky.Altitude, moon.Parallax);
    f.MoonParallacticAngle =
        ParallacticAngleNow(now, alpha, delta, Site.CurLatitude, Site.CurLongitude);
}

// The majors are centred on the upper transit T and half a lunar day from it; the minors a
// quarter lunar day either side. A minor that would fall after midnight is dropped, not wrapped.
void Astronomy::SetPeriods(double T)
{
    DayForecast& f = Forecast;
    f.Major1 = T;
    f.Major2 = WrapInto(T > HalfLunarDay ? T - HalfLunarDay : T + HalfLunarDay, 24.0);
    f.Major2Text = Clock(f.Major2);
    if (T < QuarterLunarDay) {
        f.Minor1 = T + QuarterLunarDay;
        f.Minor2 = T + ThreeQuarterLunarDay;
    } else if (T < ThreeQuarterLunarDay) {
        f.Minor1 = T - QuarterLunarDay;
        f.Minor2 = T + QuarterLunarDay;
    } else {
        f.Minor1 = T - ThreeQuarterLunarDay;
        f.Minor2 = T - QuarterLunarDay;
    }
    for (auto [minor, text] : {std::pair{&f.Minor2, &f.Minor2Text}, {&f.Minor1, &f.Minor1Text}}) {
        if (*minor >= 24.0) {
            *minor = -1.0;
            *text = NoPeriod;
        } else {
            *text = Clock(*minor);
        }
    }
}

// The universal-time instant of the chosen hour on the day at 0h jd (HourInstant holds the
// hour with the zone added).
double Astronomy::ChosenInstant(double jd) const
{
    return Site.InstantOf(jd + Site.HourInstant - Site.ZoneDays);
}

std::string Astronomy::Clock(double hours) const { return FormatClock(0, hours, Site.AMPM); }

double TopocentricAltitude(double h, double parallax)
{
    return std::atan2(std::sin(h) - std::sin(parallax), std::cos(h));
}

std::int16_t IllumPercentOf(double fraction)
{
    return static_cast<std::int16_t>(std::nearbyint(100.0 * fraction)); // halves to even
}
