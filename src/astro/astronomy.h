// The astronomy engine. Operations overwrite their result members in place and the caller
// reads them right after the call, so one engine object serves one thread of work; a window,
// a list or the log filler may each own one.
#pragma once

#include "astro/observer.h"
#include "astro/timebase.h"

class Astronomy {
public:
    // Where and when: the current location's working values and the chosen hour.
    Observer Site;

    // ---- time base ----
    // Fraction of the day since 0h, as left by the last JulianDay0.
    double DayFraction = 0.0;

    // Julian day of the 0h preceding or at jd; sets DayFraction.
    double JulianDay0(double jd);
    // Greenwich mean sidereal time in hours, [0, 24) (Meeus ch. 12).
    double GreenwichSiderealHours(double jd);

    // ---- obliquity and coordinate conversions (Meeus ch. 13 and 22) ----
    struct Equatorial {
        double Alpha = 0.0; // right ascension, [0, 2pi)
        double Delta = 0.0; // declination
    };
    // Left by the last EclipticToEquatorial.
    Equatorial EquatorialResult;

    // Mean obliquity of the ecliptic in radians (Laskar, Meeus eq. 22.3).
    double MeanObliquity(double jd) const;
    // Ecliptic longitude and latitude to equatorial (Meeus eqs. 13.3, 13.4); sets
    // EquatorialResult.
    void EclipticToEquatorial(double lambda, double beta, double epsilon);
};
