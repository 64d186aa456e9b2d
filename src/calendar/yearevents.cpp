// The year's lunar and solar events in the year day table. Each kind is found by walking its
// cycle number k from before the year to after it, so no event of the year is skipped.
#include "calendar/calendar.h"

#include "astro/astronomy.h"
#include "astro/lunarevents.h"

#include <cmath>

const std::array<const char*, 2> PerigeeCaptions = {" Moon at Perigee ", " Moon at Apogee "};
const std::array<const char*, 4> SeasonCaptions = {" Spring Eqinox ", " Summer Solstice ",
                                                   " Fall Equinox ", " Winter Solstice "};
const std::array<const char*, 2> DeclinationCaptions = {" Moon at Max North Declination ",
                                                        " Moon at Max South Declination "};

namespace {

// Walks whole cycles while the cycle's first event lies before the day after the year.
template <typename Visit> void WalkCycles(double firstK, double endJD, Visit visit)
{
    for (double k = firstK; visit(k) < endJD; k += 1.0) {
    }
}

class EventWriter {
public:
    explicit EventWriter(Calendar& cal) : Cal(cal) {}

    // The year day record of an instant, or nullptr when it falls outside the table.
    DayMarks* DayOf(double t) const
    {
        const double i = std::floor(t - Cal.YearStartJD + 1.0);
        if (std::floor(t) - Cal.YearStartJD < 0.0 || i > Cal.YearSlots)
            return nullptr;
        return &Cal.YearDays[std::size_t(i)];
    }
    // As DayOf, for the events that must also fall within the year's own days.
    DayMarks* DayWithinYear(double t) const
    {
        return t >= Cal.YearStartJD && t <= Cal.YearEndJD + 1.0 ? DayOf(t) : nullptr;
    }
    static void Caption(DayMarks& r, const char* text) { r.Text = text + r.Text; }

private:
    Calendar& Cal;
};

} // namespace

void SetYearEvents(Calendar& cal, Astronomy& engine, std::int16_t southernHemisphere)
{
    cal.YearEndJD = cal.YearStartJD + cal.YearSlots - 2;
    const EventWriter w(cal);
    const double before = cal.YearStartJD - 2.0, after = cal.YearEndJD + 3.0;

    WalkCycles(FirstApsisCycle(before), after, [&](double k) {
        engine.PerigeeApogee(k);
        for (std::size_t i = 0; i < 2; ++i)
            if (DayMarks* r = w.DayWithinYear(engine.PerigeeTimes[i])) {
                r->Perigee = std::int16_t(i + 1);
                r->PerigeeJD = engine.PerigeeTimes[i];
                EventWriter::Caption(*r, PerigeeCaptions[i]);
            }
        return engine.PerigeeTimes[0];
    });

    engine.Seasons(cal.CurYear);
    for (std::size_t i = 0; i < 4; ++i)
        if (DayMarks* r = w.DayOf(engine.SeasonTimes[i])) {
            r->Season = std::int16_t(i + 1);
            r->SeasonJD = engine.SeasonTimes[i] + engine.Site.DstOffsetDays;
            EventWriter::Caption(*r, SeasonCaptions[i]);
        }

    engine.EarthApsides(cal.CurYear);
    for (std::size_t i = 0; i < 2; ++i)
        if (DayMarks* r = w.DayWithinYear(engine.EarthApsisTimes[i])) {
            r->EarthApsis = std::int16_t(i + 1);
            r->EarthApsisJD = engine.EarthApsisTimes[i];
        }

    WalkCycles(FirstDeclinationCycle(before), after, [&](double k) {
        engine.MaxDeclinations(k);
        for (std::size_t i = 0; i < 2; ++i)
            if (DayMarks* r = w.DayWithinYear(engine.DeclinationTimes[i])) {
                r->Declination = std::int16_t(i + 1);
                r->DeclinationJD = engine.DeclinationTimes[i];
                EventWriter::Caption(*r, DeclinationCaptions[i]);
            }
        return engine.DeclinationTimes[0];
    });

    WalkCycles(FirstPhaseCycle(before), after, [&](double k) {
        engine.MoonPhases(k);
        for (std::size_t i = 0; i < 4; ++i)
            if (DayMarks* r = w.DayOf(engine.PhaseTimes[i])) {
                r->Phase = std::int16_t(i + 1);
                r->PhaseJD = engine.PhaseTimes[i];
            }
        return engine.PhaseTimes[0];
    });

    SetDayRatings(cal, southernHemisphere);
}
