// SPDX-License-Identifier: GPL-3.0-or-later
// A place's own clock: its offset from universal time in whole minutes east of Greenwich at
// any instant, as a table of the instants where the offset changes (the tz database's rules
// for the years asked for). Instants are Julian days of universal time.
#pragma once

#include <string>
#include <vector>

struct ClockOffset {
    double FromJD = 0.0; // the offset holds from this instant (UT) until the next entry's
    int Minutes = 0;     // east of Greenwich: +330 for India, -210 for Newfoundland in winter
};

struct ZoneRules {
    std::string Name;                 // "America/Chicago"
    std::vector<ClockOffset> Offsets; // by FromJD; the first one holds before its instant too

    bool Empty() const { return Offsets.empty(); }
    // The offset at the UT instant jd.
    int MinutesAt(double jd) const;
    // The UT instant of a local clock time (a Julian day on the clock). A time the clock
    // shows twice is its first showing; a time the clock skips is the instant of the skip.
    double InstantOf(double localJD) const;
    // The UT instants in [fromJD, toJD) where the offset changes.
    std::vector<double> ChangesBetween(double fromJD, double toJD) const;
};
