// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/astronomy.h"

#include <cmath>

double Astronomy::JulianDay0(double jd)
{
    const double f = jd - std::floor(jd);
    if (f > 0.5) {
        DayFraction = f - 0.5;
        return std::floor(jd) + 0.5;
    }
    if (f == 0.5) {
        DayFraction = 0.0;
        return std::floor(jd) + 0.5;
    }
    DayFraction = f + 0.5;
    return std::floor(jd - 1.0) + 0.5;
}

// Meeus eq. 12.3 at 0h, then the sidereal rate over the elapsed part of the day.
double Astronomy::GreenwichSiderealHours(double jd)
{
    const double J0 = JulianDay0(jd);
    const double T = CenturiesSinceJ2000(J0);
    const double theta0 = 6.697374558 + (2400.051336 + 0.000025862 * T) * T;
    const double theta = theta0 + 1.0027379092649011 * 24.0 * DayFraction;
    return WrapInto(theta, 24.0);
}
