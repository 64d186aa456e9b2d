// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/common/forecastrun.h"

#include "astro/timebase.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

DayEvent Crossing(EventFlag flag, double hours)
{
    return flag == EventFlag::InDay ? DayEvent::At(hours) : DayEvent{};
}

// A rise or set: none at all when the body stays on one side of the altitude all day.
DayEvent RiseOrSet(EventFlag flag, HorizonState aboveHorizonState, double hours)
{
    if (aboveHorizonState != HorizonState::Crosses)
        return {std::nullopt, aboveHorizonState == HorizonState::StaysAbove ? EventStatus::Above
                                                                            : EventStatus::Below};
    return Crossing(flag, hours);
}

DayEvent Rise(const RiseTransitSet& e)
{
    return RiseOrSet(e.RiseFlag, e.AboveHorizonState, e.RiseTime);
}
DayEvent Transit(const RiseTransitSet& e) { return Crossing(e.TransitFlag, e.TransitTime); }
DayEvent Set(const RiseTransitSet& e)
{
    return RiseOrSet(e.SetFlag, e.AboveHorizonState, e.SetTime);
}

DayEvent Period(double hours) { return hours == -1.0 ? DayEvent{} : DayEvent::At(hours); }

double Degrees(double radians) { return radians / DegToRad; }

// The command line's name and caption of each kind of event, by its day-table code - 1.
struct EventNames {
    std::array<const char*, 4> Types;
    std::array<const char*, 4> Captions;
};
const EventNames& NamesOf(YearEvent::Kind kind)
{
    static const EventNames Phases = {{"new_moon", "first_quarter", "full_moon", "last_quarter"},
                                      {PhaseNames[1], PhaseNames[2], PhaseNames[3], PhaseNames[4]}};
    static const EventNames Apsides = {{"perigee", "apogee"},
                                       {PerigeeCaptions[0], PerigeeCaptions[1]}};
    static const EventNames Declinations = {{"max_north_declination", "max_south_declination"},
                                            {DeclinationCaptions[0], DeclinationCaptions[1]}};
    static const EventNames Seasons = {
        {"march_equinox", "june_solstice", "september_equinox", "december_solstice"},
        {SeasonNames[1], SeasonNames[2], SeasonNames[3], SeasonNames[4]}};
    static const EventNames EarthApsides = {{"perihelion", "aphelion"},
                                            {EarthApsisNames[0], EarthApsisNames[1]}};
    switch (kind) {
    case YearEvent::Kind::Phase:
        return Phases;
    case YearEvent::Kind::Apsis:
        return Apsides;
    case YearEvent::Kind::Declination:
        return Declinations;
    case YearEvent::Kind::Season:
        return Seasons;
    case YearEvent::Kind::EarthApsis:
        break;
    }
    return EarthApsides;
}

} // namespace

ForecastRun::ForecastRun(const ForecastPlace& place)
{
    Observer& site = Engine.Site;
    site.SetPlace(place.Longitude, place.Latitude, std::int16_t(place.TimeZone));
    site.DstOffsetDays = place.DstOffsetDays;
    site.Clock = place.Clock;
    site.TimeFormats = !site.Clock.Empty()          ? LocalClockMode
                       : place.DstOffsetDays != 0.0 ? DaylightSavingsMode
                                                    : StandardMode;
    site.AMPM = place.AmPm;
    site.TwilightsInClockDay = true;
    site.HourInstant = place.HourMinutes / 1440.0 + site.ZoneDays;
    SouthernHemisphere = place.Latitude < 0 ? -1 : 0;
    Cal.CurYear = 0;
}

void ForecastRun::UseYear(int year)
{
    if (Cal.CurYear == year)
        return;
    Cal.CurYear = std::int16_t(year);
    Cal.CurMonth = 1;
    Cal.SetYearTables(Engine, SouthernHemisphere);
}

DayRow ForecastRun::Day(int year, int month, int day)
{
    UseYear(year);
    const double J = CivilToJd(year, month, day);
    Engine.ComputeSunDay(J);
    Engine.ComputeDay(J);
    const DayForecast& f = Engine.Forecast;
    const MoonEventRecord& m = f.MoonEvents;
    const DayMarks& marks = Cal.YearDays[std::size_t(DayOfYearOf(year, month, day))];
    DayRow r;
    r.Year = year;
    r.Month = month;
    r.Day = day;
    const SunEventTable& sun = f.SunEvents;
    r.Sunrise = Rise(sun.Horizon);
    r.SunTransit = Transit(sun.Horizon);
    r.Sunset = Set(sun.Horizon);
    r.CivilDawn = Rise(sun.Civil);
    r.CivilDusk = Set(sun.Civil);
    r.NauticalDawn = Rise(sun.Nautical);
    r.NauticalDusk = Set(sun.Nautical);
    r.AstronomicalDawn = Rise(sun.Astronomical);
    r.AstronomicalDusk = Set(sun.Astronomical);
    r.DayLength = f.DayLength;
    r.Moonrise = Rise(m);
    r.MoonTransit = Transit(m);
    r.Moonset = Set(m);
    r.Moonrise2 = Crossing(m.LaterRiseFlag, m.LaterRiseTime);
    r.Moonset2 = Crossing(m.LaterSetFlag, m.LaterSetTime);
    // A day without a transit of its own gets a major from its neighbours' transits (starred
    // in the window); that transit happens on another day.
    r.Major1 = Crossing(m.TransitFlag, f.Major1);
    // The second major stands for the lower transit, which some days do not have.
    r.Major2 = Crossing(Engine.MoonLowerTransitInDay(J) ? EventFlag::InDay : EventFlag::OtherDay,
                        f.Major2);
    r.Minor1 = Period(f.Minor1);
    r.Minor2 = Period(f.Minor2);
    r.Major1Text = f.Major1Text;
    r.Major2Text = f.Major2Text;
    r.Minor1Text = f.Minor1Text;
    r.Minor2Text = f.Minor2Text;
    r.SunriseText = f.SunriseText;
    r.SunsetText = f.SunsetText;
    r.IllumPercent = f.IllumPercent;
    r.Waxing = f.Waxing;
    r.Rating = marks.Rating;
    r.MoonAge = marks.MoonAge;
    r.Phase = marks.Phase;
    r.Perigee = marks.Perigee;
    r.Declination = marks.Declination;
    r.Season = marks.Season;
    r.Holiday = marks.Holiday;
    r.Text = marks.Text;
    r.SunAzimuth = Degrees(f.SkyPosition.SunAzimuth);
    r.MoonAzimuth = Degrees(f.SkyPosition.MoonAzimuth);
    r.SunAltitude = Degrees(f.SkyPosition.SunAltitude);
    r.MoonAltitude = Degrees(f.SkyPosition.MoonAltitude);
    r.MoonParallacticAngle = Degrees(f.MoonParallacticAngle);
    // The day's offset: the clock's at local noon.
    r.UtcOffsetHours = 24.0 * Engine.Site.ClockDaysAt(Engine.Site.InstantOf(J + 0.5));
    // The change read on both clocks; the later reading ends the clock before it.
    const Observer::ClockDay clock = Engine.Site.ClockOn(J);
    r.Clock = {24.0 * clock.Start, 24.0 * clock.End,
               24.0 * (clock.Change - J - std::min(clock.Start, clock.End))};
    return r;
}

std::vector<EventRow> ForecastRun::Events(int year)
{
    std::vector<EventRow> rows;
    for (const YearEvent& e :
         YearEventsBetween(Engine, CivilToJd(year, 1, 1), CivilToJd(year + 1, 1, 1))) {
        const EventNames& names = NamesOf(e.Of);
        const CivilDate c = JdToCivil(EventDayJD(e.LocalJD));
        const auto i = std::size_t(e.Code - 1);
        rows.push_back({names.Types[i], Engine.Site.InstantOf(e.LocalJD), EventMinute(e.LocalJD),
                        c.Year, c.Month, c.Day, names.Captions[i]});
    }
    return rows;
}
