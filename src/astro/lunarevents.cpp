// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/lunarevents.h"

#include "astro/astronomy.h"
#include "astro/lunarevents_terms.h"
#include "astro/mathutil.h"
#include "astro/timebase.h"

#include <cmath>
#include <span>

namespace {

struct Arguments {
    double D = 0.0, M = 0.0, Mp = 0.0, F = 0.0, Om = 0.0; // radians
    double E = 1.0, T = 0.0;
};

double Radians(double degrees) { return WrapInto(degrees, 360.0) * DegToRad; }

double Eccentricity(double T) { return 1.0 - 0.002516 * T - 0.0000074 * T * T; } // eq. 47.6

double SumTerms(std::span<const EventTerm> terms, const Arguments& a)
{
    double sum = 0.0;
    for (const EventTerm& t : terms) {
        const double x = t.D * a.D + t.M * a.M + t.Mp * a.Mp + t.F * a.F + t.Om * a.Om;
        const double e = t.EPower == 0 ? 1.0 : t.EPower == 1 ? a.E : a.E * a.E;
        sum += (t.A + t.AT * a.T) * e * (t.Cosine ? std::cos(x) : std::sin(x));
    }
    return sum;
}

// Table 49.C's fourteen planetary arguments.
double PlanetaryCorrection(double k, double T)
{
    double sum = 0.0;
    for (const PlanetaryArgument& p : PlanetaryArguments)
        sum += p.Coefficient * std::sin(Radians(p.Base + p.Rate * k + p.TSquared * T * T));
    return sum;
}

} // namespace

double PhaseJDE(double k)
{
    const double T = k / 1236.85; // eq. 49.3
    const double T2 = T * T, T3 = T2 * T, T4 = T3 * T;
    Arguments a;
    a.T = T;
    a.E = Eccentricity(T);
    // The polynomials of the book's second edition, from the lunar constants fitted to laser
    // ranging: the first edition's tidal acceleration puts the phases a minute early by 2500.
    a.M = Radians(2.5534 + 29.10535670 * k - 0.0000014 * T2 - 0.00000011 * T3);
    a.Mp =
        Radians(201.5643 + 385.81693528 * k + 0.0107582 * T2 + 0.00001238 * T3 - 0.000000058 * T4);
    a.F =
        Radians(160.7108 + 390.67050284 * k - 0.0016118 * T2 - 0.00000227 * T3 + 0.000000011 * T4);
    a.Om = Radians(124.7746 - 1.56375588 * k + 0.0020672 * T2 + 0.00000215 * T3);
    double jde = 2451550.09766 + 29.530588861 * k + 0.00015437 * T2 - 0.000000150 * T3 +
                 0.00000000073 * T4; // eq. 49.1
    const double quarter = k - std::floor(k);
    if (quarter < 0.125)
        jde += SumTerms(NewMoonTerms, a);
    else if (std::abs(quarter - 0.5) < 0.125)
        jde += SumTerms(FullMoonTerms, a);
    else {
        const double W = 0.00306 - 0.00038 * a.E * std::cos(a.M) + 0.00026 * std::cos(a.Mp) -
                         0.00002 * std::cos(a.Mp - a.M) + 0.00002 * std::cos(a.Mp + a.M) +
                         0.00002 * std::cos(2.0 * a.F);
        jde += SumTerms(QuarterTerms, a) + (quarter < 0.5 ? W : -W);
    }
    return jde + PlanetaryCorrection(k, T);
}

double PerigeeApogeeJDE(double k)
{
    const double T = k / 1325.55; // eq. 50.3
    const double T2 = T * T, T3 = T2 * T, T4 = T3 * T;
    Arguments a;
    a.T = T;
    a.D = Radians(171.9179 + 335.9106046 * k - 0.0100250 * T2 - 0.00001156 * T3 + 0.000000055 * T4);
    a.M = Radians(347.3477 + 27.1577721 * k - 0.0008323 * T2 - 0.0000010 * T3);
    a.F = Radians(316.6109 + 364.5287911 * k - 0.0125131 * T2 - 0.0000148 * T3);
    const double mean = 2451534.6698 + 27.55454988 * k - 0.0006886 * T2 - 0.000001098 * T3 +
                        0.0000000052 * T4; // eq. 50.1
    const bool apogee = k - std::floor(k) > 0.25;
    return mean + (apogee ? SumTerms(ApogeeTerms, a) : SumTerms(PerigeeTerms, a));
}

double DeclinationJDE(double k, bool north)
{
    const double T = k / 1336.86; // eq. 52.1
    const double T2 = T * T, T3 = T2 * T;
    Arguments a;
    a.T = T;
    a.E = Eccentricity(T);
    a.D =
        Radians((north ? 152.2029 : 345.6676) + 333.0705546 * k - 0.0004025 * T2 + 0.00000011 * T3);
    a.M = Radians((north ? 14.8591 : 1.3951) + 26.9281592 * k - 0.0000544 * T2 - 0.0000001 * T3);
    a.Mp = Radians((north ? 4.6881 : 186.21) + 356.9562795 * k + 0.0103126 * T2 + 0.00001251 * T3);
    a.F = Radians((north ? 325.8867 : 145.1633) + 1.4467806 * k - 0.0020708 * T2 - 0.00000215 * T3);
    const double mean = (north ? 2451562.5897 : 2451548.9289) + 27.321582241 * k +
                        0.000100695 * T2 - 0.000000141 * T3;
    return mean + SumTerms(north ? std::span<const EventTerm>(NorthDeclinationTerms)
                                 : std::span<const EventTerm>(SouthDeclinationTerms),
                           a);
}

double SeasonJDE(int year, int season)
{
    const double Y = (year - 2000) / 1000.0;
    const auto& c = SeasonPolynomials[std::size_t(season - 1)];
    const double jde0 = c[0] + Y * (c[1] + Y * (c[2] + Y * (c[3] + Y * c[4])));
    const double T = (jde0 - J2000) / 36525.0;
    const double W = (35999.373 * T - 2.47) * DegToRad;
    const double dLambda = 1.0 + 0.0334 * std::cos(W) + 0.0007 * std::cos(2.0 * W);
    double S = 0.0;
    for (const SeasonTerm& t : SeasonTerms)
        S += t.A * std::cos((t.B + t.C * T) * DegToRad);
    return jde0 + 0.00001 * S / dLambda; // Meeus ch. 27
}

double FirstPhaseCycle(double jd) { return std::floor((jd - 2451550.09766) / 29.530588861) - 1.0; }

double FirstApsisCycle(double jd) { return std::floor((jd - 2451534.6698) / 27.55454988) - 1.0; }

double FirstDeclinationCycle(double jd)
{
    return std::floor((jd - 2451562.5897) / 27.321582241) - 1.0;
}

double Astronomy::LocalInstant(double jde) const
{
    return Site.LocalOf(jde - DeltaTSeconds(jde) / SecondsPerDay);
}

double Astronomy::RefinedMoonExtreme(MoonExtreme kind, double k)
{
    const long long key = std::llround(2.0 * k) * 3 + int(kind);
    if (const auto found = MoonExtremes.find(key); found != MoonExtremes.end())
        return found->second;
    // The series are good to minutes (the declinations' to an hour): steps of 72 and 7.2
    // minutes bring the vertex to the engine's own extreme within a second.
    constexpr std::array<double, 2> Steps = {0.05, 0.005}; // days
    double jde = 0.0;
    if (kind == MoonExtreme::Apsis)
        jde = ParabolicExtremum(MoonGeometricDistance, PerigeeApogeeJDE(k), Steps);
    else
        jde = ParabolicExtremum([this](double t) { return MoonPosition(t).Delta; },
                                DeclinationJDE(k, kind == MoonExtreme::North), Steps);
    if (MoonExtremes.size() >= MoonExtremesKept)
        MoonExtremes.clear();
    MoonExtremes.emplace(key, jde);
    return jde;
}

void Astronomy::MoonPhases(double k)
{
    for (std::size_t i = 0; i < 4; ++i)
        PhaseTimes[i] = LocalInstant(PhaseJDE(k + 0.25 * double(i)));
}

void Astronomy::PerigeeApogee(double k)
{
    for (std::size_t i = 0; i < 2; ++i)
        PerigeeTimes[i] = LocalInstant(RefinedMoonExtreme(MoonExtreme::Apsis, k + 0.5 * double(i)));
}

void Astronomy::MaxDeclinations(double k)
{
    DeclinationTimes[0] = LocalInstant(RefinedMoonExtreme(MoonExtreme::North, k));
    DeclinationTimes[1] = LocalInstant(RefinedMoonExtreme(MoonExtreme::South, k));
}

void Astronomy::Seasons(double year)
{
    for (int s = 1; s <= 4; ++s)
        SeasonTimes[std::size_t(s - 1)] = LocalInstant(SeasonJDE(int(year), s));
}
