#include "cli/forecastrun.h"

#include "astro/timebase.h"

#include <algorithm>
#include <optional>

namespace {

std::optional<double> IfFound(std::int16_t status, double hours)
{
    return status == 2 ? std::nullopt : std::optional(hours);
}
std::optional<double> IfPeriod(double hours)
{
    return hours == -1.0 ? std::nullopt : std::optional(hours);
}
double Degrees(double radians) { return radians / DegToRad; }

const char* const PhaseTypes[] = {"new_moon", "first_quarter", "full_moon", "last_quarter"};
const char* const ApsisTypes[] = {"perigee", "apogee"};
const char* const DeclinationTypes[] = {"max_north_declination", "max_south_declination"};
const char* const SeasonTypes[] = {"march_equinox", "june_solstice", "september_equinox",
                                   "december_solstice"};

} // namespace

ForecastRun::ForecastRun(const ForecastPlace& place)
{
    Observer& site = Engine.Site;
    site.SetPlace(place.Longitude, place.Latitude, std::int16_t(place.TimeZone));
    site.DstOffsetDays = place.DstOffsetDays;
    site.TimeFormats = place.DstOffsetDays != 0.0 ? 0 : 1;
    site.AMPM = place.AmPm;
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
    r.Sunrise = f.SunEvents(0, 0);
    r.SunTransit = f.SunEvents(0, 1);
    r.Sunset = f.SunEvents(0, 2);
    r.CivilDawn = f.SunEvents(1, 0);
    r.CivilDusk = f.SunEvents(1, 2);
    r.NauticalDawn = f.SunEvents(2, 0);
    r.NauticalDusk = f.SunEvents(2, 2);
    r.AstronomicalDawn = f.SunEvents(3, 0);
    r.AstronomicalDusk = f.SunEvents(3, 2);
    r.DayLength = f.DayLength;
    r.Moonrise = IfFound(m.RiseFlag, m.RiseTime);
    r.MoonTransit = IfFound(m.TransitFlag, m.TransitTime);
    r.Moonset = IfFound(m.SetFlag, m.SetTime);
    r.Major1 = f.Major1;
    r.Major2 = f.Major2;
    r.Minor1 = IfPeriod(f.Minor1);
    r.Minor2 = IfPeriod(f.Minor2);
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
    r.SunAzimuth = Degrees(f.SkyPosition[0]);
    r.MoonAzimuth = Degrees(f.SkyPosition[1]);
    r.SunAltitude = Degrees(f.SkyPosition[2]);
    r.MoonAltitude = Degrees(f.SkyPosition[3]);
    r.MoonParallacticAngle = Degrees(f.MoonParallacticAngle);
    r.UtcOffsetHours = 24.0 * (Engine.Site.ZoneDays + Engine.Site.DstOffsetDays);
    return r;
}

std::vector<EventRow> ForecastRun::Events(int year)
{
    UseYear(year);
    std::vector<EventRow> events;
    const auto add = [&](int d, const char* type, double jd, double localJD, std::string caption) {
        const CivilDate c = JdToCivil(Cal.YearStartJD + d - 1);
        events.push_back({type, jd, localJD, c.Year, c.Month, c.Day, std::move(caption)});
    };
    // Seasons are kept in dynamical time with the daylight-saving offset; the lunar events
    // are already local.
    const double zone = Engine.Site.ZoneDays;
    for (int d = 1; d < int(Cal.YearDays.size()); ++d) {
        const DayMarks& r = Cal.YearDays[std::size_t(d)];
        if (r.Phase >= 1)
            add(d, PhaseTypes[r.Phase - 1], r.PhaseJD, r.PhaseJD, PhaseNames[std::size_t(r.Phase)]);
        if (r.Perigee >= 1)
            add(d, ApsisTypes[r.Perigee - 1], r.PerigeeJD, r.PerigeeJD,
                PerigeeCaptions[std::size_t(r.Perigee - 1)]);
        if (r.Declination >= 1)
            add(d, DeclinationTypes[r.Declination - 1], r.DeclinationJD, r.DeclinationJD,
                DeclinationCaptions[std::size_t(r.Declination - 1)]);
        if (r.Season >= 1)
            add(d, SeasonTypes[r.Season - 1], r.SeasonJD,
                r.SeasonJD - zone - DeltaTSeconds(r.SeasonJD) / 86400.0,
                SeasonNames[std::size_t(r.Season)]);
    }
    std::stable_sort(events.begin(), events.end(),
                     [](const EventRow& a, const EventRow& b) { return a.LocalJD < b.LocalJD; });
    return events;
}
