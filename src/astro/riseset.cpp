// Rising, transit and setting from the body's coordinates on three consecutive days, with
// interpolation and iterative correction (Meeus ch. 15).
#include "astro/astronomy.h"
#include "astro/mathutil.h"

#include <cmath>

namespace {
// Sidereal rate, 360.985647 degrees per day, in radians.
constexpr double SiderealRate = 6.300388092591984;
constexpr int MaxRounds = 5;

// Brings a fraction of a day into the local day that starts at z (days).
double IntoLocalDay(double m, double z)
{
    if (m < z)
        m += 1.0;
    if (m - 1.0 > z)
        m -= 1.0;
    return m;
}
} // namespace

void Astronomy::FindEvents()
{
    const double L = EventLongitude * DegToRad;
    const double phi = EventLatitude * DegToRad;
    const double dT = DeltaTSeconds(EventDayJD);
    const double Z = EventZoneHours / 24.0;
    double a1 = EventRA[1], a3 = EventRA[3];
    const double a2 = EventRA[2];
    if (a1 > a2)
        a1 -= TwoPi;
    if (a3 < a2)
        a3 += TwoPi;
    const double d2 = EventDec[2];
    const double h0 = EventAltitude;
    const double Theta0 = GreenwichSiderealHours(EventDayJD) * 15.0 * DegToRad;
    const double cosH0 =
        (std::sin(h0) - std::sin(phi) * std::sin(d2)) / (std::cos(phi) * std::cos(d2));

    double m0 = IntoLocalDay((a2 + L - Theta0) / TwoPi, Z);
    std::array<double, 3> m{m0, m0, m0};
    if (std::fabs(cosH0) <= 1.0) {
        const double H0 = WrapInto(ArcCos(cosH0), Pi);
        m[1] = m0 - H0 / TwoPi;
        m[2] = m0 + H0 / TwoPi;
        AboveHorizonState = 0;
    } else if (cosH0 < -1.0) {
        m[1] = m0 - 0.5;
        m[2] = m0 + 0.5;
        AboveHorizonState = 1;
    } else {
        AboveHorizonState = -1;
    }
    if (m[1] < 0)
        m[1] += 1.0;
    if (m[2] > 1)
        m[2] -= 1.0;

    const int events = AboveHorizonState == 0 ? 3 : 1;
    for (int k = 0; k < events; ++k) {
        double mk = IntoLocalDay(m[std::size_t(k)], Z);
        double H = 0.0, delta = d2;
        for (int round = 0; round < MaxRounds; ++round) {
            const double theta = WrapInto(Theta0 + SiderealRate * mk, TwoPi);
            const double n = mk + dT / 86400.0;
            const double alpha = Interpolate3(a1, a2, a3, n);
            if (k != 0)
                delta = Interpolate3(EventDec[1], d2, EventDec[3], n);
            H = theta - L - alpha;
            if (H < -Pi)
                H += TwoPi;
            else if (H > Pi)
                H -= TwoPi;
            double dm;
            if (k == 0) {
                dm = -H / TwoPi;
            } else {
                const double h = ArcSin(std::sin(phi) * std::sin(delta) +
                                        std::cos(phi) * std::cos(delta) * std::cos(H));
                dm = (h - h0) / (TwoPi * std::cos(delta) * std::cos(phi) * std::sin(H));
            }
            mk += dm;
            if (std::fabs(dm) < 0.0001)
                break;
        }
        m[std::size_t(k)] = mk;
        const double d = mk - Z;
        const bool inDay = d >= 0.0 && d < 1.0;
        PositionResult[std::size_t(9 + k)] = inDay ? 0.0 : 2.0;
        if (!inDay)
            continue;
        if (k == 0)
            PositionResult[3] =
                ArcSin(std::sin(d2) * std::sin(phi) + std::cos(d2) * std::cos(phi) * std::cos(H));
        else if (k == 1)
            PositionResult[4] = ArcCos((std::sin(d2) + std::sin(phi) * std::sin(h0)) /
                                       (std::cos(phi) * std::cos(h0)));
        else
            PositionResult[5] = TwoPi - PositionResult[4];
    }
    if (AboveHorizonState != 0)
        PositionResult[10] = PositionResult[11] = 2.0;
    for (std::size_t k = 0; k < 3; ++k)
        PositionResult[k] = 24.0 * m[k];
}
