// SPDX-License-Identifier: GPL-3.0-or-later
// The Sun: apparent position from the VSOP87 Earth terms (Meeus ch. 25, 32) and the short
// theory of Meeus's Astronomical Formulae for Calculators.
#include "astro/astronomy.h"
#include "astro/vsop87_earth_terms.h"

#include <cmath>

namespace {
constexpr double ArcsecToRad = DegToRad / 3600.0;

template <std::size_t N> double Series(const std::array<VsopTerm, N>& terms, double tau)
{
    double sum = 0.0;
    for (const VsopTerm& t : terms)
        sum += t.A * std::cos(t.B + t.C * tau);
    return sum;
}

// Revolutions reduced to their fraction, so that the angles stay small.
double Frac(double x) { return x - std::floor(x); }
} // namespace

double EarthSunDistance(double jde)
{
    const double tau = MillenniaSinceJ2000(jde);
    return Series(Vsop87EarthR0, tau) +
           tau * (Series(Vsop87EarthR1, tau) +
                  tau * (Series(Vsop87EarthR2, tau) +
                         tau * (Series(Vsop87EarthR3, tau) + tau * Series(Vsop87EarthR4, tau))));
}

SunPlace Astronomy::SunPosition(double jd)
{
    const double tau = MillenniaSinceJ2000(jd);
    const double L =
        Series(Vsop87EarthL0, tau) +
        tau *
            (Series(Vsop87EarthL1, tau) +
             tau * (Series(Vsop87EarthL2, tau) +
                    tau * (Series(Vsop87EarthL3, tau) +
                           tau * (Series(Vsop87EarthL4, tau) + tau * Series(Vsop87EarthL5, tau)))));
    const double B = Series(Vsop87EarthB0, tau) + tau * Series(Vsop87EarthB1, tau);
    const double R = EarthSunDistance(jd);

    double Theta = WrapInto(L + Pi, TwoPi);
    double beta = -B;
    // To the FK5 frame (Meeus eq. 32.3); the correction uses Theta itself.
    beta += 0.03916 * ArcsecToRad * (std::cos(Theta) - std::sin(Theta));
    Theta -= 0.09033 * ArcsecToRad;

    ComputeNutation(jd);
    const double epsilon = MeanObliquity(jd) + NutationObliquity;
    Obliquity = epsilon;
    const double aberration = 20.4898 * ArcsecToRad / R;
    const double lambda = WrapInto(Theta + NutationLongitude - aberration, TwoPi);
    const Equatorial place = EclipticToEquatorial(lambda, beta, epsilon);
    return {lambda, beta, R, place.Alpha, place.Delta};
}

EclipticPoint Astronomy::SunLowPrecision(double jd)
{
    const double T = (jd - 2415020.0) / 36525.0;
    const double L = 279.69668 + 360.0 * Frac(100.0021359 * T) + 0.0003025 * T * T;
    const double M =
        358.47583 + 360.0 * Frac(99.99736042 * T) - 0.000150 * T * T - 0.0000033 * T * T * T;
    const double e = 0.01675104 - 0.0000418 * T - 0.000000126 * T * T;

    // Kepler's equation by iteration.
    const double Mr = M * DegToRad;
    double E = Mr;
    for (double previous = E + 1.0; std::fabs(E - previous) >= 0.000001;) {
        previous = E;
        E = Mr + e * std::sin(previous);
    }
    const double v = 2.0 * std::atan(std::sqrt((1.0 + e) / (1.0 - e)) * std::tan(E / 2.0));
    double R = 1.0000002 * (1.0 - e * std::cos(E));

    const double A = (153.23 + 360.0 * Frac(62.55209472 * T)) * DegToRad;
    const double Bp = (216.57 + 360.0 * Frac(125.1041894 * T)) * DegToRad;
    const double C = (312.69 + 360.0 * Frac(91.56766028 * T)) * DegToRad;
    const double D = (350.74 + 360.0 * Frac(1236.853095 * T) - 0.00144 * T * T) * DegToRad;
    const double Ep = (231.19 + 20.20 * T) * DegToRad;
    const double H = (353.40 + 360.0 * Frac(183.1353208 * T)) * DegToRad;

    const double longitude = L + (v / DegToRad - M) + 0.00134 * std::cos(A) +
                             0.00154 * std::cos(Bp) + 0.00200 * std::cos(C) +
                             0.00179 * std::sin(D) + 0.00178 * std::sin(Ep);
    R += 0.00000543 * std::sin(A) + 0.00001575 * std::sin(Bp) + 0.00001627 * std::sin(C) +
         0.00003076 * std::cos(D) + 0.00000927 * std::sin(H);
    return {longitude * DegToRad, 0.0, R};
}
