// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/perihelion.h"

#include "astro/astronomy.h"
#include "astro/mathutil.h"
#include "astro/timebase.h"

#include <array>
#include <cmath>

namespace {

// Table 38 (from the book's list of planets): k = Rate (year - Epoch); JDE = A + B k + C k^2.
struct MeanOrbit {
    double Rate, Epoch, A, B, C;
};
constexpr std::array<MeanOrbit, 8> MeanOrbits = {{
    {4.15201, 2000.12, 2451590.257, 87.96934963, 0.0},
    {1.62549, 2000.53, 2451738.233, 224.7008188, -0.0000000327},
    {0.99997, 2000.01, 2451547.507, 365.2596358, 0.0000000156},
    {0.53166, 2001.78, 2452195.026, 686.9957857, -0.0000001187},
    {0.08430, 2011.20, 2455636.936, 4332.897065, 0.0001367},
    {0.03393, 2003.52, 2452830.12, 10764.21676, 0.000827},
    {0.01190, 2051.10, 2470213.5, 30694.8767, -0.00541},
    {0.00607, 2047.50, 2468895.1, 60190.33, 0.03429},
}};
static_assert(MeanOrbits.size() == 8);

// Table 38.A: the Moon's pull moves the Earth off the barycentre's orbit; arguments
// Base + Rate k (degrees), coefficients in days for perihelion and aphelion.
struct EarthTerm {
    double Base, Rate, Perihelion, Aphelion;
};
constexpr std::array<EarthTerm, 5> EarthTerms = {{
    {328.41, 132.788585, 1.278, -1.352},
    {316.13, 584.903153, -0.055, 0.061},
    {346.20, 450.380738, -0.091, 0.062},
    {136.95, 659.306737, -0.056, 0.029},
    {249.52, 329.653368, -0.045, 0.031},
}};
static_assert(EarthTerms.size() == 5);

const MeanOrbit& OrbitOf(Planet p) { return MeanOrbits[std::size_t(p)]; }

// The extreme of the Earth's distance near jde, as Meeus advises for accurate instants. The
// minimum is flat, so the table's estimate can be hours away.
double DistanceExtremum(double jde)
{
    constexpr std::array<double, 3> Steps = {0.5, 0.05, 0.005}; // days
    return ParabolicExtremum(EarthSunDistance, jde, Steps);
}

} // namespace

double ApsisCycle(Planet p, double year, bool aphelion)
{
    const MeanOrbit& o = OrbitOf(p);
    const double k = o.Rate * (year - o.Epoch);
    return aphelion ? std::floor(k) + 0.5 : std::floor(k + 0.5);
}

double ApsisJDE(Planet p, double k)
{
    const MeanOrbit& o = OrbitOf(p);
    double jde = o.A + k * (o.B + k * o.C);
    if (p == Planet::Earth) {
        const bool aphelion = k - std::floor(k) > 0.25;
        for (const EarthTerm& t : EarthTerms)
            jde += (aphelion ? t.Aphelion : t.Perihelion) *
                   std::sin(WrapInto(t.Base + t.Rate * k, 360.0) * DegToRad);
    }
    return jde;
}

void Astronomy::EarthApsides(int year)
{
    for (std::size_t i = 0; i < 2; ++i) {
        // The perihelion falls in early January, the aphelion in early July.
        const double k = ApsisCycle(Planet::Earth, year + 0.5 * double(i), i == 1);
        const double jde = DistanceExtremum(ApsisJDE(Planet::Earth, k));
        EarthApsisTimes[i] = LocalInstant(jde);
    }
}
