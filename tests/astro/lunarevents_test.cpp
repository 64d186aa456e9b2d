// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/astronomy.h"
#include "astro/lunarevents.h"
#include "astro/timebase.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <functional>
#include <map>
#include <string>

namespace {

constexpr double Minute = 1.0 / 1440.0;

// Meeus's worked examples: 49.a, the new moon of 1977 February; 50.a, the apogee of 1988
// October; 52.a, the greatest northern declination of 1988 December; 27.a, the June solstice
// of 1962.
TEST(LunarEvents, WorkedExamplesOfTheBook)
{
    EXPECT_NEAR(PhaseJDE(-283.0), 2443192.65118, 0.00002);
    EXPECT_NEAR(PerigeeApogeeJDE(-148.5), 2447442.3543, 0.0001);
    EXPECT_NEAR(DeclinationJDE(-148.0, true), 2447518.3346, 0.0001);
    EXPECT_NEAR(SeasonJDE(1962, 2), 2437837.39245, 0.00001);
}

// Phases and seasons within a minute; perigee, apogee and the greatest declinations, the
// extremes of slow curves, within two.
double ToleranceMinutes(const std::string& type)
{
    const bool extreme =
        type == "perigee" || type == "apogee" || type.find("declination") != std::string::npos;
    return extreme ? 2.0 : 1.0;
}

// The engine's dynamical instant of one kind of event nearest a reference instant.
double NearestEngineInstant(Astronomy& engine, const std::string& type, double tt)
{
    static const std::array<std::string, 4> phases = {"new_moon", "first_quarter", "full_moon",
                                                      "last_quarter"};
    static const std::array<std::string, 4> seasons = {"march_equinox", "june_solstice",
                                                       "september_equinox", "december_solstice"};
    std::function<double(double)> ofCycle;
    double firstK = 0.0;
    if (const auto p = std::find(phases.begin(), phases.end(), type); p != phases.end()) {
        const double quarter = 0.25 * double(p - phases.begin());
        ofCycle = [quarter](double k) { return PhaseJDE(k + quarter); };
        firstK = FirstPhaseCycle(tt);
    } else if (const auto s = std::find(seasons.begin(), seasons.end(), type); s != seasons.end()) {
        const int season = int(s - seasons.begin()) + 1;
        return SeasonJDE(JdToCivil(tt).Year, season);
    } else if (type == "perigee" || type == "apogee") {
        const double half = type == "apogee" ? 0.5 : 0.0;
        ofCycle = [&engine, half](double k) {
            return engine.RefinedMoonExtreme(Astronomy::MoonExtreme::Apsis, k + half);
        };
        firstK = FirstApsisCycle(tt);
    } else {
        const auto kind = type == "max_north_declination" ? Astronomy::MoonExtreme::North
                                                          : Astronomy::MoonExtreme::South;
        ofCycle = [&engine, kind](double k) { return engine.RefinedMoonExtreme(kind, k); };
        firstK = FirstDeclinationCycle(tt);
    }
    double best = 0.0;
    for (double k = firstK - 1.0; k <= firstK + 3.0; k += 1.0)
        if (const double t = ofCycle(k); std::abs(t - tt) < std::abs(best - tt))
            best = t;
    return best;
}

// Thirteen years from 1900 to 2500 of every phase and season against PyEphem and every perigee,
// apogee and greatest declination against the Swiss Ephemeris (tools/year_events_reference.py),
// in dynamical time.
TEST(LunarEvents, ThirteenYearsAgreeWithEphemAndTheSwissEphemeris)
{
    std::ifstream file(QUILLMERE_YEAR_EVENTS);
    ASSERT_TRUE(file) << QUILLMERE_YEAR_EVENTS;
    std::map<std::string, int> counts;
    Astronomy engine;
    std::string line;
    while (std::getline(file, line)) {
        const auto comma = line.find(',');
        if (line.empty() || line[0] == '#' || comma == std::string::npos || line[0] == 't')
            continue;
        const std::string type = line.substr(0, comma);
        const double tt = std::stod(line.substr(comma + 1));
        const double minutes = (NearestEngineInstant(engine, type, tt) - tt) / Minute;
        EXPECT_LT(std::abs(minutes), ToleranceMinutes(type)) << line;
        ++counts[type];
    }
    EXPECT_EQ(counts.size(), 12u);
    for (const auto& [type, count] : counts)
        EXPECT_GE(count, 13) << type; // every year holds every kind
}

} // namespace
