// Rising, transit and setting from the body's coordinates on three consecutive days, with
// interpolation and iterative correction (Meeus ch. 15).
#include "astro/astronomy.h"
#include "astro/mathutil.h"

#include <algorithm>
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

bool InLocalDay(double m, double z)
{
    const double d = m - z;
    return d >= 0.0 && d < 1.0;
}

// Azimuth from north of a body at altitude h0 with declination delta, rising or setting:
// cos A = (sin delta - sin phi sin h0) / (cos phi cos h0) (Meeus eq. 13.6 solved for A). The
// cosine is clamped so that a body grazing the horizon at a polar place gives north or south.
double HorizonAzimuth(double delta, double phi, double h0, bool setting)
{
    const double cosA =
        (std::sin(delta) - std::sin(phi) * std::sin(h0)) / (std::cos(phi) * std::cos(h0));
    const double A = std::acos(std::clamp(cosA, -1.0, 1.0));
    return setting ? TwoPi - A : A;
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

    // The event k (0 transit, 1 rise, 2 set) refined from the estimate mk: its time, the last
    // hour angle and the declination interpolated at it.
    struct Refinement {
        double m, H, delta;
    };
    const auto Refine = [&](std::size_t k, double mk) {
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
            if (std::fabs(dm) < EventTolerance)
                break;
        }
        return Refinement{mk, H, delta};
    };
    const std::size_t events = AboveHorizonState == 0 ? 3 : 1;
    for (std::size_t k = 0; k < 3; ++k) {
        // Rise and set that are not searched for have no extras, never a previous search's.
        PositionResult[3 + k] = 0.0;
        PositionResult[9 + k] = 2.0;
    }
    for (std::size_t k = 0; k < events; ++k) {
        const double first = IntoLocalDay(m[k], Z);
        Refinement r = Refine(k, first);
        // An estimate near midnight can walk out of the day; the day's own event is then the
        // one refined from the estimate a day the other way.
        if (!InLocalDay(r.m, Z)) {
            const Refinement other = Refine(k, first + (r.m - Z >= 1.0 ? -1.0 : 1.0));
            if (InLocalDay(other.m, Z))
                r = other;
        }
        m[k] = r.m;
        PositionResult[9 + k] = InLocalDay(r.m, Z) ? 0.0 : 2.0;
        // The extras belong to the event found, in the day or not.
        if (k == 0)
            PositionResult[3] =
                ArcSin(std::sin(d2) * std::sin(phi) + std::cos(d2) * std::cos(phi) * std::cos(r.H));
        else
            PositionResult[3 + k] = HorizonAzimuth(r.delta, phi, h0, k == 2);
    }
    for (std::size_t k = 0; k < 3; ++k)
        PositionResult[k] = 24.0 * m[k];
}
