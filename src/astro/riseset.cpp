// SPDX-License-Identifier: GPL-3.0-or-later
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

double HoursAbove(const RiseTransitSet& e)
{
    if (e.AboveHorizonState != HorizonState::Crosses)
        return e.AboveHorizonState == HorizonState::StaysAbove ? 24.0 : 0.0;
    // The day's crossings in time order, +1 for a rise, -1 for a set.
    std::vector<std::pair<double, int>> crossings;
    const auto add = [&](EventFlag flag, double time, int sign) {
        if (flag == EventFlag::InDay)
            crossings.emplace_back(time, sign);
    };
    add(e.RiseFlag, e.RiseTime, 1);
    add(e.SetFlag, e.SetTime, -1);
    add(e.LaterRiseFlag, e.LaterRiseTime, 1);
    add(e.LaterSetFlag, e.LaterSetTime, -1);
    if (crossings.empty())
        return e.TransitAltitude > 0.0 ? 24.0 : 0.0;
    std::sort(crossings.begin(), crossings.end());
    // Up at midnight when the first crossing is a set.
    double hours = 0.0, since = crossings.front().second < 0 ? 0.0 : -1.0;
    for (const auto& [time, sign] : crossings) {
        if (sign > 0 && since < 0.0)
            since = time;
        else if (sign < 0 && since >= 0.0) {
            hours += time - since;
            since = -1.0;
        }
    }
    return since >= 0.0 ? hours + 24.0 - since : hours;
}

namespace {
// The altitude is sampled every two hours: it turns twice a day (at the transits), so a turn
// shows among the samples as one that stands above or below both neighbours.
constexpr double SampleStep = 1.0 / 12.0;
// A turn is located to a minute: the altitude there is flat to a fraction of an arcsecond.
constexpr double TurnTolerance = 1.0 / 1440.0;
// A crossing is refined to a tenth of a millisecond, or until the altitude is met to 1e-12.
constexpr double CrossingTolerance = 1e-9;
constexpr double AltitudeTolerance = 1e-12;
constexpr int MaxCrossingSteps = 60;
const double GoldenRatio = (std::sqrt(5.0) - 1.0) / 2.0;

// The highest (sign 1) or lowest (sign -1) point of the altitude in [a, b], by golden section.
SkyPoint TurnBetween(const SkyAt& sky, double a, double b, double sign)
{
    double c = b - GoldenRatio * (b - a), d = a + GoldenRatio * (b - a);
    SkyPoint pc = sky(c), pd = sky(d);
    while (b - a > TurnTolerance) {
        if (sign * pc.Altitude > sign * pd.Altitude) {
            b = d;
            d = c;
            pd = pc;
            c = b - GoldenRatio * (b - a);
            pc = sky(c);
        } else {
            a = c;
            c = d;
            pc = pd;
            d = a + GoldenRatio * (b - a);
            pd = sky(d);
        }
    }
    return sign * pc.Altitude > sign * pd.Altitude ? pc : pd;
}

// The crossing of h0 between a and b, which lie either side of it: regula falsi with the
// Illinois step, which keeps the bracket shrinking from both ends.
SkyPoint CrossingBetween(const SkyAt& sky, double h0, SkyPoint a, SkyPoint b)
{
    double fa = a.Altitude - h0, fb = b.Altitude - h0;
    int kept = 0; // which end stayed in the last step: -1 a, 1 b
    SkyPoint c = std::fabs(fa) < std::fabs(fb) ? a : b;
    for (int step = 0; step < MaxCrossingSteps && b.JD - a.JD > CrossingTolerance; ++step) {
        c = sky((a.JD * fb - b.JD * fa) / (fb - fa));
        const double fc = c.Altitude - h0;
        if (std::fabs(fc) < AltitudeTolerance)
            break;
        if ((fc > 0.0) == (fb > 0.0)) {
            b = c;
            fb = fc;
            if (kept == -1)
                fa /= 2.0;
            kept = -1;
        } else {
            a = c;
            fa = fc;
            if (kept == 1)
                fb /= 2.0;
            kept = 1;
        }
    }
    return c;
}
} // namespace

std::vector<SkyPoint> TrackAltitude(const SkyAt& sky, double from, double to,
                                    const std::vector<double>& instants)
{
    std::vector<SkyPoint> samples;
    // Whole steps from one before the day to two past it, counted so that no sum drifts.
    const double first = from - SampleStep;
    for (int i = 0; first + i * SampleStep < to + 2.0 * SampleStep; ++i)
        samples.push_back(sky(first + i * SampleStep));
    std::vector<SkyPoint> track = samples;
    for (std::size_t i = 1; i + 1 < samples.size(); ++i) {
        const double rise = samples[i].Altitude - samples[i - 1].Altitude;
        const double next = samples[i + 1].Altitude - samples[i].Altitude;
        if (rise * next < 0.0)
            track.push_back(
                TurnBetween(sky, samples[i - 1].JD, samples[i + 1].JD, rise > 0.0 ? 1.0 : -1.0));
    }
    for (double t : instants)
        track.push_back(sky(t));
    std::sort(track.begin(), track.end(),
              [](const SkyPoint& p, const SkyPoint& q) { return p.JD < q.JD; });
    return track;
}

std::vector<AltitudeCrossing> CrossingsOf(const std::vector<SkyPoint>& track, const SkyAt& sky,
                                          double h0, double from, double to)
{
    std::vector<AltitudeCrossing> found;
    for (std::size_t i = 1; i < track.size(); ++i) {
        const SkyPoint &p = track[i - 1], &q = track[i];
        if (p.JD < from || q.JD > to || (p.Altitude > h0) == (q.Altitude > h0))
            continue;
        found.push_back({CrossingBetween(sky, h0, p, q), q.Altitude > h0});
    }
    return found;
}
