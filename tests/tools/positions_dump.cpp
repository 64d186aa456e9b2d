// SPDX-License-Identifier: GPL-3.0-or-later
// Prints the engine's Sun and Moon for COUNT instants spread over 1900-2100 (taken as dynamical
// time), one line each, for the comparison with an independent ephemeris:
// jd, true obliquity, then lambda beta alpha delta of the Sun, then of the Moon (radians),
// the Sun's distance (AU) and the Moon's (km).
#include "astro/astronomy.h"

#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv)
{
    const int count = argc > 1 ? std::atoi(argv[1]) : 1200;
    const double first = CivilToJd(1900, 1, 1), last = CivilToJd(2100, 1, 1);
    Astronomy a;
    for (int i = 0; i < count; ++i) {
        // Spread: an irrational step so that the instants fall at all times of day.
        const double jd = first + (last - first) * (i + 0.5 * 0.6180339887) / count;
        const SunPlace sun = a.SunPosition(jd);
        std::printf("%.8f %.12f %.12f %.12f %.12f %.12f %.10f", jd, a.Obliquity, sun.Lambda,
                    sun.Beta, sun.Alpha, sun.Delta, sun.R);
        const MoonPlace moon = a.MoonPosition(jd);
        std::printf(" %.12f %.12f %.12f %.12f %.4f %.12f\n", moon.Lambda, moon.Beta, moon.Alpha,
                    moon.Delta, moon.Distance, a.Obliquity);
    }
    return 0;
}
