#include "cli/common/forecastrun.h"

#include "astro/lunarevents.h"
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

// Hours of the local day with the Sun above the horizon, from the day's own rise and set.
std::optional<double> DaylightHours(const DayEvent& rise, const DayEvent& set)
{
    if (rise.Status == EventStatus::Above)
        return 24.0;
    if (rise.Status == EventStatus::Below)
        return 0.0;
    if (rise.Hours && set.Hours)
        return *set.Hours >= *rise.Hours ? *set.Hours - *rise.Hours
                                         : 24.0 - (*rise.Hours - *set.Hours);
    if (rise.Hours) // sets after midnight
        return 24.0 - *rise.Hours;
    if (set.Hours) // rose before midnight
        return *set.Hours;
    return std::nullopt;
}

DayEvent Period(double hours) { return hours == -1.0 ? DayEvent{} : DayEvent::At(hours); }

double Degrees(double radians) { return radians / DegToRad; }

const char* const PhaseTypes[] = {"new_moon", "first_quarter", "full_moon", "last_quarter"};
const char* const ApsisTypes[] = {"perigee", "apogee"};
const char* const DeclinationTypes[] = {"max_north_declination", "max_south_declination"};
const char* const SeasonTypes[] = {"march_equinox", "june_solstice", "september_equinox",
                                   "december_solstice"};

// Collects the events whose local date lies in one year, from their dynamical instants.
class YearEventList {
public:
    YearEventList(int year, const Observer& site)
        : Year(year), Site(site), Start(site.InstantOf(CivilToJd(year, 1, 1))),
          End(site.InstantOf(CivilToJd(year + 1, 1, 1)))
    {
    }

    // Walks whole cycles from before the year until a cycle starts after it.
    template <typename Visit> void WalkCycles(double firstK, Visit visit)
    {
        for (double k = firstK; visit(k) < End + 2.0; k += 1.0) {
        }
    }
    double First() const { return Start - 2.0; }

    // Adds the event at dynamical instant jde when its local date, to the minute as printed,
    // lies in the year.
    void Add(const char* type, double jde, const std::string& caption)
    {
        const double ut = jde - DeltaTSeconds(jde) / 86400.0;
        const double local = std::round(Site.LocalOf(ut) * 1440.0) / 1440.0;
        const CivilDate c = JdToCivil(std::floor(local + 0.5 + 0.5 / 1440.0) - 0.5);
        if (c.Year != Year)
            return;
        Events.push_back({type, ut, local, c.Year, c.Month, c.Day, caption});
    }

    std::vector<EventRow> Events;

private:
    int Year;
    const Observer& Site;
    double Start, End;
};

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
    r.DayLength = DaylightHours(r.Sunrise, r.Sunset);
    r.Moonrise = Rise(m);
    r.MoonTransit = Transit(m);
    r.Moonset = Set(m);
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
    return r;
}

std::vector<EventRow> ForecastRun::Events(int year)
{
    YearEventList list(year, Engine.Site);
    list.WalkCycles(FirstPhaseCycle(list.First()), [&](double k) {
        for (std::size_t i = 0; i < 4; ++i)
            list.Add(PhaseTypes[i], PhaseJDE(k + 0.25 * double(i)), PhaseNames[i + 1]);
        return PhaseJDE(k);
    });
    list.WalkCycles(FirstApsisCycle(list.First()), [&](double k) {
        for (std::size_t i = 0; i < 2; ++i)
            list.Add(ApsisTypes[i], PerigeeApogeeJDE(k + 0.5 * double(i)), PerigeeCaptions[i]);
        return PerigeeApogeeJDE(k);
    });
    list.WalkCycles(FirstDeclinationCycle(list.First()), [&](double k) {
        for (std::size_t i = 0; i < 2; ++i)
            list.Add(DeclinationTypes[i], DeclinationJDE(k, i == 0), DeclinationCaptions[i]);
        return DeclinationJDE(k, true);
    });
    for (int s = 1; s <= 4; ++s)
        list.Add(SeasonTypes[s - 1], SeasonJDE(year, s), SeasonNames[std::size_t(s)]);
    std::stable_sort(list.Events.begin(), list.Events.end(),
                     [](const EventRow& a, const EventRow& b) { return a.JD < b.JD; });
    return std::move(list.Events);
}
