// SPDX-License-Identifier: GPL-3.0-or-later
// Prints a year of the engine's rise, set and twilight events at one place, for the comparison
// with PyEphem's sampled altitudes (tools/riseset_sampling_check.py). Arguments: latitude (north
// positive), longitude (west positive), zone (hours west), year, and "eu" for European daylight
// saving (from the last Sunday of March to the day before the last Sunday of October). One line
// per local day:
//   DATE ZONE_HOURS (local clock + ZONE_HOURS = UT) then, for sunrise/sunset, civil, nautical,
//   astronomical twilight and the Moon: STATE RISES SETS
// STATE is C (crosses in the day), A (above all day) or B (below all day); RISES and SETS are
// comma-separated local clock hours of the events in the day, or '-'.
#include "astro/astronomy.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {
char StateLetter(HorizonState s)
{
    return s == HorizonState::Crosses ? 'C' : s == HorizonState::StaysAbove ? 'A' : 'B';
}

// The day's events of one kind, the first and the later one, as the comparison reads them.
std::string Hours(const RiseTransitSet& e, double first, EventFlag firstFlag, double later,
                  EventFlag laterFlag)
{
    if (firstFlag != EventFlag::InDay || e.AboveHorizonState != HorizonState::Crosses)
        return "-";
    char text[48];
    if (laterFlag == EventFlag::InDay)
        std::snprintf(text, sizeof text, "%.6f,%.6f", first, later);
    else
        std::snprintf(text, sizeof text, "%.6f", first);
    return text;
}

void PrintRow(const RiseTransitSet& e)
{
    std::printf(" %c %s %s", StateLetter(e.AboveHorizonState),
                Hours(e, e.RiseTime, e.RiseFlag, e.LaterRiseTime, e.LaterRiseFlag).c_str(),
                Hours(e, e.SetTime, e.SetFlag, e.LaterSetTime, e.LaterSetFlag).c_str());
}

// The Julian day of the last Sunday of a month of 31 days.
double LastSunday(int year, int month)
{
    const double last = CivilToJd(year, month, 31);
    return last - std::fmod(last + 1.5, 7.0);
}
} // namespace

int main(int argc, char** argv)
{
    if (argc < 5) {
        std::fprintf(stderr, "usage: riseset_dump LAT LON_WEST ZONE YEAR [eu]\n");
        return 2;
    }
    Astronomy a;
    a.Site.SetPlace(std::atof(argv[2]), std::atof(argv[1]), std::int16_t(std::atoi(argv[3])));
    a.Site.TwilightsInClockDay = true;
    const int year = std::atoi(argv[4]);
    const bool eu = argc > 5 && std::strcmp(argv[5], "eu") == 0;
    const double summerFrom = LastSunday(year, 3), summerUntil = LastSunday(year, 10);

    for (double jd = CivilToJd(year, 1, 1); jd < CivilToJd(year + 1, 1, 1); jd += 1.0) {
        const CivilDate d = JdToCivil(jd);
        a.Site.DstOffsetDays = eu && jd >= summerFrom && jd < summerUntil ? -1.0 / 24.0 : 0.0;
        a.SunEventsForDay(jd);
        a.MoonEventsForDay(jd);
        std::printf("%04d-%02d-%02d %g", d.Year, d.Month, int(d.Day),
                    24.0 * (a.Site.ZoneDays + a.Site.DstOffsetDays));
        for (SunRow r : SunRows)
            PrintRow(a.Forecast.SunEvents[r]);
        PrintRow(a.Forecast.MoonEvents);
        std::printf("\n");
    }
    return 0;
}
