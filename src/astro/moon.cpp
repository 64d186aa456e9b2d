// SPDX-License-Identifier: GPL-3.0-or-later
// The Moon's apparent position (Meeus ch. 47, mean elements of the first edition), its
// parallax, and the illuminated fraction and bright limb (ch. 48); its distance to half a
// kilometre for the perigees and apogees (the main problem of ELP 2000-82).
#include "astro/astronomy.h"
#include "astro/mathutil.h"
#include "astro/moon_distance_terms.h"
#include "astro/moon_terms.h"

#include <cmath>
#include <cstdlib>

namespace {
// Mean elements, degrees, as polynomials in T (first edition, eqs. 45.1-45.5).
constexpr std::array<double, 5> Lp = {218.3164591, 481267.88134236, -0.0013268, 1.0 / 538841.0,
                                      -1.0 / 65194000.0};
constexpr std::array<double, 5> Dm = {297.8502042, 445267.1115168, -0.0016300, 1.0 / 545868.0,
                                      -1.0 / 113065000.0};
constexpr std::array<double, 5> Ms = {357.5291092, 35999.0502909, -0.0001536, 1.0 / 24490000.0,
                                      0.0};
constexpr std::array<double, 5> Mm = {134.9634114, 477198.8676313, 0.0089970, 1.0 / 69699.0,
                                      -1.0 / 14712000.0};
constexpr std::array<double, 5> Fm = {93.2720993, 483202.0175273, -0.0034029, -1.0 / 3526000.0,
                                      1.0 / 863310000.0};
// The second edition's D, M' and F (eqs. 47.2, 47.4, 47.5), from the lunar constants fitted to
// laser ranging, for the distance's extremes: with the first edition's they drift to 1.4 minutes
// off by 2500.
constexpr std::array<double, 5> Dm2 = {297.8501921, 445267.1114034, -0.0018819, 1.0 / 545868.0,
                                       -1.0 / 113065000.0};
constexpr std::array<double, 5> Mm2 = {134.9633964, 477198.8675055, 0.0087414, 1.0 / 69699.0,
                                       -1.0 / 14712000.0};
constexpr std::array<double, 5> Fm2 = {93.2720950, 483202.0175233, -0.0036539, -1.0 / 3526000.0,
                                       1.0 / 863310000.0};
constexpr std::array<double, 5> A1 = {119.75, 131.849, 0, 0, 0};
constexpr std::array<double, 5> A2 = {53.09, 479264.29, 0, 0, 0};
constexpr std::array<double, 5> A3 = {313.45, 481266.484, 0, 0, 0};
constexpr std::array<double, 3> Ecc = {1.0, -0.002516, -0.0000074};

constexpr double EarthRadiusKm = 6378.14;
constexpr double AuKm = 149597870.0;

double Radians(const std::array<double, 5>& c, double T)
{
    return WrapInto(Poly4(c, T), 360.0) * DegToRad;
}

// Terms with M are scaled by E, with 2M by E squared and so on (the Earth's shrinking
// eccentricity).
double EFactor(int m, double E)
{
    double e = 1.0;
    for (int i = 0; i < std::abs(m); ++i)
        e *= E;
    return e;
}
} // namespace

double MoonGeometricDistance(double jde)
{
    const double T = CenturiesSinceJ2000(jde);
    const double E = Poly2(Ecc, T);
    const MultipleAngles<4, 6> args(
        {Radians(Dm2, T), Radians(Ms, T), Radians(Mm2, T), Radians(Fm2, T)});
    double r = MoonMeanDistanceKm;
    for (const MoonDistanceTerm& t : MoonDistanceTerms)
        r += EFactor(t.M, E) * t.R * args.Of({t.D, t.M, t.Mp, t.F}).Cos;
    return r;
}

MoonPlace Astronomy::MoonPosition(double jd)
{
    const double T = CenturiesSinceJ2000(jd);
    const double L1 = Radians(Lp, T), D = Radians(Dm, T), M = Radians(Ms, T);
    const double M1 = Radians(Mm, T), F = Radians(Fm, T);
    const double E = Poly2(Ecc, T);

    const MultipleAngles<4, 4> args({D, M, M1, F});
    double sl = 0.0, sr = 0.0, sb = 0.0;
    for (const MoonLrTerm& t : MoonLongitudeDistanceTerms) {
        const auto arg = args.Of({t.D, t.M, t.Mp, t.F});
        const double e = EFactor(t.M, E);
        sl += e * t.L * arg.Sin;
        sr += e * t.R * arg.Cos;
    }
    for (const MoonBTerm& t : MoonLatitudeTerms)
        sb += EFactor(t.M, E) * t.B * args.Of({t.D, t.M, t.Mp, t.F}).Sin;
    const double a1 = Radians(A1, T), a2 = Radians(A2, T), a3 = Radians(A3, T);
    sl += 0.003958 * std::sin(a1) + 0.001962 * std::sin(L1 - F) + 0.000318 * std::sin(a2);
    sb += -0.002235 * std::sin(L1) + 0.000382 * std::sin(a3) +
          0.000350 * std::sin(a1) * std::cos(F) + 0.000127 * std::sin(L1 - M1) -
          0.000115 * std::sin(L1 + M1);

    ComputeNutation(jd);
    const double epsilon = MeanObliquity(jd) + NutationObliquity;
    Obliquity = epsilon;
    const double lambda = WrapInto(L1 + sl * DegToRad + NutationLongitude, TwoPi);
    const double beta = sb * DegToRad;
    const double Delta = 385000.56 + sr;
    const Equatorial moon = EclipticToEquatorial(lambda, beta, epsilon);

    const EclipticPoint sun = SunLowPrecision(jd);
    const double lambda0 = WrapInto(sun.Longitude + NutationLongitude, TwoPi);
    const double R = sun.Distance;
    const Equatorial sun0 = EclipticToEquatorial(lambda0, 0.0, epsilon);

    const double psi = ArcCos(std::cos(beta) * std::cos(lambda - lambda0));
    const double i =
        WrapInto(std::atan(R * std::sin(psi) / (Delta / AuKm - R * std::cos(psi))), Pi);

    MoonPlace p;
    p.Lambda = lambda;
    p.Beta = beta;
    p.Distance = Delta;
    p.Parallax = ArcSin(EarthRadiusKm / Delta);
    p.IllumFraction = (1.0 + std::cos(i)) / 2.0;
    p.BrightLimb = WrapInto(BrightLimbAngle(moon.Alpha, moon.Delta, sun0.Alpha, sun0.Delta), TwoPi);
    p.Alpha = moon.Alpha;
    p.Delta = moon.Delta;
    p.Elongation = psi;
    return p;
}
