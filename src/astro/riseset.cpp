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

RiseTransitSet Astronomy::FindEvents(const EventSearch& s)
{
    const double L = s.Longitude * DegToRad;
    const double phi = s.Latitude * DegToRad;
    const double dT = DeltaTSeconds(s.J0);
    const double Z = s.ZoneHours / 24.0;
    double a1 = s.Yesterday.Alpha, a3 = s.Tomorrow.Alpha;
    const double a2 = s.Today.Alpha;
    if (a1 > a2)
        a1 -= TwoPi;
    if (a3 < a2)
        a3 += TwoPi;
    const double d1 = s.Yesterday.Delta, d2 = s.Today.Delta, d3 = s.Tomorrow.Delta;
    const double h0 = s.Altitude;
    const double Theta0 = GreenwichSiderealHours(s.J0) * 15.0 * DegToRad;
    const double cosH0 =
        (std::sin(h0) - std::sin(phi) * std::sin(d2)) / (std::cos(phi) * std::cos(d2));

    RiseTransitSet found;
    double m0 = IntoLocalDay((a2 + L - Theta0) / TwoPi, Z);
    std::array<double, 3> m{m0, m0, m0};
    if (std::fabs(cosH0) <= 1.0) {
        const double H0 = WrapInto(ArcCos(cosH0), Pi);
        m[1] = m0 - H0 / TwoPi;
        m[2] = m0 + H0 / TwoPi;
        found.AboveHorizonState = HorizonState::Crosses;
    } else if (cosH0 < -1.0) {
        m[1] = m0 - 0.5;
        m[2] = m0 + 0.5;
        found.AboveHorizonState = HorizonState::StaysAbove;
    } else {
        found.AboveHorizonState = HorizonState::StaysBelow;
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
                delta = Interpolate3(d1, d2, d3, n);
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
    // The event k as found from its estimate. An estimate near midnight can walk out of the
    // day; the day's own event is then the one refined from the estimate a day the other way.
    const auto Find = [&](std::size_t k) {
        const double first = IntoLocalDay(m[k], Z);
        const Refinement r = Refine(k, first);
        if (!InLocalDay(r.m, Z)) {
            const Refinement other = Refine(k, first + (r.m - Z >= 1.0 ? -1.0 : 1.0));
            if (InLocalDay(other.m, Z))
                return other;
        }
        return r;
    };
    const auto Flag = [&](const Refinement& r) {
        return InLocalDay(r.m, Z) ? EventFlag::InDay : EventFlag::OtherDay;
    };

    // Where the body stands belongs to the event found, in the day or not.
    const Refinement transit = Find(0);
    found.TransitTime = 24.0 * transit.m;
    found.TransitAltitude =
        ArcSin(std::sin(d2) * std::sin(phi) + std::cos(d2) * std::cos(phi) * std::cos(transit.H));
    found.TransitFlag = Flag(transit);
    found.RiseTime = 24.0 * m[1];
    found.SetTime = 24.0 * m[2];
    if (found.AboveHorizonState != HorizonState::Crosses)
        return found;
    const Refinement rise = Find(1), set = Find(2);
    found.RiseTime = 24.0 * rise.m;
    found.RiseAzimuth = HorizonAzimuth(rise.delta, phi, h0, false);
    found.RiseFlag = Flag(rise);
    found.SetTime = 24.0 * set.m;
    found.SetAzimuth = HorizonAzimuth(set.delta, phi, h0, true);
    found.SetFlag = Flag(set);
    return found;
}
