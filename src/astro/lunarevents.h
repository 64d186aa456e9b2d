// SPDX-License-Identifier: GPL-3.0-or-later
// Instants (Julian Ephemeris Days) of the year's lunar and solar events, from cycle numbers:
// Meeus ch. 49 (phases), 50 (perigee and apogee), 52 (greatest declinations), 27 (seasons).
#pragma once

// k whole for a new moon; + 0.25, 0.5, 0.75 for first quarter, full moon, last quarter.
double PhaseJDE(double k);
// k whole for a perigee, + 0.5 for the apogee that follows it.
double PerigeeApogeeJDE(double k);
double DeclinationJDE(double k, bool north);
// season 1 March equinox, 2 June solstice, 3 September equinox, 4 December solstice.
double SeasonJDE(int year, int season);

// Cycle numbers of the first event of each kind on or after a Julian day (a cycle or two
// early is harmless: the callers walk k upward).
double FirstPhaseCycle(double jd);
double FirstApsisCycle(double jd);
double FirstDeclinationCycle(double jd);
