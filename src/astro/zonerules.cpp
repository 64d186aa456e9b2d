// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/zonerules.h"

#include "text/timeunits.h"

#include <algorithm>

int ZoneRules::MinutesAt(double jd) const
{
    if (Offsets.empty())
        return 0;
    const auto after =
        std::upper_bound(Offsets.begin(), Offsets.end(), jd,
                         [](double t, const ClockOffset& o) { return t < o.FromJD; });
    return after == Offsets.begin() ? after->Minutes : std::prev(after)->Minutes;
}

double ZoneRules::InstantOf(double localJD) const
{
    // Each offset that holds near the time gives a candidate instant; the earliest candidate
    // whose own offset is the one it was made with is a showing of the time on the clock.
    const double guess = localJD - MinutesToDays(MinutesAt(localJD));
    double first = guess;
    bool found = false;
    for (const int m : {MinutesAt(localJD - 1.0), MinutesAt(localJD), MinutesAt(localJD + 1.0)}) {
        const double t = localJD - MinutesToDays(m);
        if (MinutesAt(t) == m && (!found || t < first)) {
            first = t;
            found = true;
        }
    }
    if (found)
        return first;
    // Skipped: the change that skips it starts between the two candidates.
    const auto change =
        std::upper_bound(Offsets.begin(), Offsets.end(), guess,
                         [](double t, const ClockOffset& o) { return t < o.FromJD; });
    return change == Offsets.begin() ? guess : std::prev(change)->FromJD;
}

std::vector<double> ZoneRules::ChangesBetween(double fromJD, double toJD) const
{
    std::vector<double> changes;
    auto o = std::lower_bound(Offsets.begin(), Offsets.end(), fromJD,
                              [](const ClockOffset& e, double t) { return e.FromJD < t; });
    for (; o != Offsets.end() && o->FromJD < toJD; ++o)
        if (o != Offsets.begin() && o->Minutes != std::prev(o)->Minutes)
            changes.push_back(o->FromJD);
    return changes;
}
