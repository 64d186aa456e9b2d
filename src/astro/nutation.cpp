// SPDX-License-Identifier: GPL-3.0-or-later
// Nutation (Meeus ch. 22), the horizon and the parallactic angle (ch. 13, 14) and the
// Moon's bright limb (ch. 48).
#include "astro/astronomy.h"
#include "astro/mathutil.h"
#include "astro/nutation_terms.h"

#include <cmath>

namespace {
constexpr double ArcsecToRad = DegToRad / 3600.0;

// The fundamental arguments of the 1980 theory, degrees, as polynomials in T.
double Cubic(double c0, double c1, double c2, double c3, double T)
{
    return c0 + T * (c1 + T * (c2 + T * c3));
}
} // namespace

void Astronomy::ComputeNutation(double jd)
{
    const double T = CenturiesSinceJ2000(jd);
    const double D = Cubic(297.8503631, 445267.11148, -0.0019142, 0.000005278, T) * DegToRad;
    const double M = Cubic(357.5277233, 35999.05034, -0.0001603, -0.00000333, T) * DegToRad;
    const double Mp = Cubic(134.9629814, 477198.8673981, 0.0086972, 0.00001778, T) * DegToRad;
    const double F = Cubic(93.2719103, 483202.0175381, -0.0036825, 0.000003056, T) * DegToRad;
    const double Om = Cubic(125.0445222, -1934.1362608, 0.00207833, 0.00000222, T) * DegToRad;
    const MultipleAngles<5, 4> args({D, M, Mp, F, Om});
    double dpsi = 0.0, deps = 0.0;
    for (const NutationTerm& t : NutationTerms) {
        const auto arg = args.Of({t.D, t.M, t.Mp, t.F, t.Omega});
        dpsi += (t.S + t.ST * T) * arg.Sin;
        deps += (t.C + t.CT * T) * arg.Cos;
    }
    NutationLongitude = dpsi * ArcsecToRad;
    NutationObliquity = deps * ArcsecToRad;
}

Astronomy::HourAngle Astronomy::LocalHourAngle(double jd, double alpha, double latitudeDeg,
                                               double longitudeDeg, double epsilon)
{
    Obliquity = epsilon;
    // Apparent sidereal time: the mean one plus the equation of the equinoxes.
    const double theta = WrapInto(GreenwichSiderealHours(jd) * 15.0 * DegToRad +
                                      NutationLongitude * std::cos(epsilon),
                                  TwoPi);
    return {WrapInto(theta - longitudeDeg * DegToRad - alpha, TwoPi), latitudeDeg * DegToRad};
}

Horizontal Astronomy::HorizontalPosition(double jd, double alpha, double delta, double latitudeDeg,
                                         double longitudeDeg)
{
    ComputeNutation(jd);
    const auto [H, phi] =
        LocalHourAngle(jd, alpha, latitudeDeg, longitudeDeg, MeanObliquity(jd) + NutationObliquity);
    Horizontal h;
    h.Azimuth =
        ArcTan2(std::cos(H) * std::sin(phi) - std::tan(delta) * std::cos(phi), std::sin(H)) + Pi;
    h.Altitude =
        ArcSin(std::sin(phi) * std::sin(delta) + std::cos(phi) * std::cos(delta) * std::cos(H));
    return h;
}

double Astronomy::ParallacticAngleNow(double jd, double alpha, double delta, double latitudeDeg,
                                      double longitudeDeg)
{
    ComputeNutation(jd);
    const auto [H, phi] = LocalHourAngle(jd, alpha, latitudeDeg, longitudeDeg, MeanObliquity(jd));
    return ArcTan2(std::tan(phi) * std::cos(delta) - std::sin(delta) * std::cos(H), std::sin(H));
}

double BrightLimbAngle(double alpha, double delta, double alpha0, double delta0)
{
    return ArcTan2(std::sin(delta0) * std::cos(delta) -
                       std::cos(delta0) * std::sin(delta) * std::cos(alpha0 - alpha),
                   std::cos(delta0) * std::sin(alpha0 - alpha));
}
