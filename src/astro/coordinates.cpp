// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/astronomy.h"
#include "astro/mathutil.h"

#include <array>
#include <cmath>

namespace {
constexpr double ArcsecToRad = DegToRad / 3600.0;

// Laskar's coefficients in arcseconds for powers 0..10 of U = T/100 (Meeus eq. 22.3).
constexpr std::array<double, 11> LaskarObliquity = {
    84381.448, -4680.93, -1.55, 1999.25, -51.38, -249.67, -39.05, 7.12, 27.87, 5.79, 2.45};
} // namespace

double Astronomy::MeanObliquity(double jd) const
{
    const double U = CenturiesSinceJ2000(jd) / 100.0;
    double eps0 = 0.0;
    for (auto c = LaskarObliquity.rbegin(); c != LaskarObliquity.rend(); ++c)
        eps0 = eps0 * U + *c;
    return eps0 * ArcsecToRad;
}

Astronomy::Equatorial Astronomy::EclipticToEquatorial(double lambda, double beta, double epsilon)
{
    const double y = std::sin(lambda) * std::cos(epsilon) - std::tan(beta) * std::sin(epsilon);
    const double x = std::cos(lambda);
    double alpha;
    if (x == 0.0) {
        alpha = y > 0.0 ? Pi / 2.0 : 3.0 * Pi / 2.0;
    } else {
        alpha = std::atan(y / x);
        if (x < 0.0)
            alpha += Pi;
        else if (y < 0.0)
            alpha += TwoPi;
    }
    return {alpha, ArcSin(std::sin(beta) * std::cos(epsilon) +
                          std::cos(beta) * std::sin(epsilon) * std::sin(lambda))};
}
