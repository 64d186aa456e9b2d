// SPDX-License-Identifier: GPL-3.0-or-later
// The year's lunar and solar events: one list, in local clock time, that the year day table
// files by the local day each event falls on and the command line prints, so the grid, the
// ratings and every list agree on the day and the minute. Each kind is found by walking its
// cycle number k from before the span to after it, so no event is skipped.
#include "calendar/calendar.h"

#include "astro/astronomy.h"
#include "astro/lunarevents.h"

#include <algorithm>
#include <cmath>

const std::array<const char*, 2> PerigeeCaptions = {" Moon at Perigee ", " Moon at Apogee "};
const std::array<const char*, 4> SeasonCaptions = {" Spring Eqinox ", " Summer Solstice ",
                                                   " Fall Equinox ", " Winter Solstice "};
const std::array<const char*, 2> DeclinationCaptions = {" Moon at Max North Declination ",
                                                        " Moon at Max South Declination "};
const std::array<const char*, 2> EarthApsisNames = {"Earth at Perihelion", "Earth at Apehelion"};

namespace {

// Keeps the events of a kind whose local day lies in [First, End).
class EventCollector {
public:
    EventCollector(double firstDayJD, double endDayJD) : First(firstDayJD), End(endDayJD) {}

    // Walks whole cycles from before the span while the cycle's first event comes before its
    // end; the visit returns that first event's local instant.
    template <typename Visit> void WalkCycles(double (*firstCycle)(double), Visit visit) const
    {
        for (double k = firstCycle(First - Margin); visit(k) < End + Margin; k += 1.0) {
        }
    }
    template <std::size_t N> void Add(YearEvent::Kind kind, const std::array<double, N>& times)
    {
        for (std::size_t i = 0; i < N; ++i) {
            const double day = EventDayJD(times[i]);
            if (day >= First && day < End)
                Events.push_back({kind, std::int16_t(i + 1), times[i]});
        }
    }

    std::vector<YearEvent> Events;

private:
    static constexpr double Margin = 2.0; // days: a cycle's events lie within days of its first
    double First, End;
};

// The order the captions are put in front of a day's text: declinations end up first, then
// seasons, then perigee and apogee.
constexpr std::array<YearEvent::Kind, 5> FilingOrder = {
    YearEvent::Kind::Apsis, YearEvent::Kind::Season, YearEvent::Kind::EarthApsis,
    YearEvent::Kind::Declination, YearEvent::Kind::Phase};

void File(DayMarks& r, const YearEvent& e)
{
    const double t = EventMinute(e.LocalJD);
    switch (e.Of) {
    case YearEvent::Kind::Phase:
        r.Phase = e.Code;
        r.PhaseJD = t;
        return;
    case YearEvent::Kind::Apsis:
        r.Perigee = e.Code;
        r.PerigeeJD = t;
        r.Text = PerigeeCaptions[std::size_t(e.Code - 1)] + r.Text;
        return;
    case YearEvent::Kind::Declination:
        r.Declination = e.Code;
        r.DeclinationJD = t;
        r.Text = DeclinationCaptions[std::size_t(e.Code - 1)] + r.Text;
        return;
    case YearEvent::Kind::Season:
        r.Season = e.Code;
        r.SeasonJD = t;
        r.Text = SeasonCaptions[std::size_t(e.Code - 1)] + r.Text;
        return;
    case YearEvent::Kind::EarthApsis:
        r.EarthApsis = e.Code;
        r.EarthApsisJD = t;
        return;
    }
}

} // namespace

std::vector<YearEvent> YearEventsBetween(Astronomy& engine, double firstDayJD, double endDayJD)
{
    EventCollector c(firstDayJD, endDayJD);
    c.WalkCycles(FirstPhaseCycle, [&](double k) {
        engine.MoonPhases(k);
        c.Add(YearEvent::Kind::Phase, engine.PhaseTimes);
        return engine.PhaseTimes[0];
    });
    c.WalkCycles(FirstApsisCycle, [&](double k) {
        engine.PerigeeApogee(k);
        c.Add(YearEvent::Kind::Apsis, engine.PerigeeTimes);
        return engine.PerigeeTimes[0];
    });
    c.WalkCycles(FirstDeclinationCycle, [&](double k) {
        engine.MaxDeclinations(k);
        c.Add(YearEvent::Kind::Declination, engine.DeclinationTimes);
        return engine.DeclinationTimes[0];
    });
    const int firstYear = JdToCivil(firstDayJD).Year, lastYear = JdToCivil(endDayJD - 1.0).Year;
    for (int year = firstYear; year <= lastYear; ++year) {
        engine.Seasons(year);
        c.Add(YearEvent::Kind::Season, engine.SeasonTimes);
        engine.EarthApsides(year);
        c.Add(YearEvent::Kind::EarthApsis, engine.EarthApsisTimes);
    }
    std::stable_sort(c.Events.begin(), c.Events.end(),
                     [](const YearEvent& a, const YearEvent& b) { return a.LocalJD < b.LocalJD; });
    return std::move(c.Events);
}

void SetYearEvents(Calendar& cal, Astronomy& engine, std::int16_t southernHemisphere)
{
    cal.YearEndJD = cal.YearStartJD + cal.YearSlots - 2;
    // Up to and with the first day of the next year (index YearSlots), whose new or full moon
    // rates the year's last days.
    const std::vector<YearEvent> events =
        YearEventsBetween(engine, cal.YearStartJD, cal.YearStartJD + cal.YearSlots);
    for (YearEvent::Kind kind : FilingOrder)
        for (const YearEvent& e : events)
            if (e.Of == kind)
                File(cal.YearDays[std::size_t(EventDayJD(e.LocalJD) - cal.YearStartJD) + 1], e);
    SetDayRatings(cal, southernHemisphere);
}
