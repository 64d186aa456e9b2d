// SPDX-License-Identifier: GPL-3.0-or-later
// Periodic terms of Meeus's chapters 49 (phases), 50 (perigee and apogee), 52 (greatest
// declinations) and 27 (equinoxes and solstices).
#pragma once

#include <array>
#include <cstdint>

// One term: (A + AT * T) * E^EPower * sin or cos of D*D + M*M + Mp*M' + F*F + Om*Omega.
struct EventTerm {
    std::int8_t D, M, Mp, F, Om;
    std::int8_t EPower;
    bool Cosine;
    double A;
    double AT = 0.0;
};

// Table 49.C's additional corrections: Coefficient * sin(Base + Rate * k + TSquared * T^2).
struct PlanetaryArgument {
    double Base, Rate, TSquared, Coefficient;
};

// Table 27.C: A cos(B + C T), degrees.
struct SeasonTerm {
    double A, B, C;
};

extern const std::array<EventTerm, 25> NewMoonTerms;
extern const std::array<EventTerm, 25> FullMoonTerms;
extern const std::array<EventTerm, 25> QuarterTerms;
extern const std::array<PlanetaryArgument, 14> PlanetaryArguments;
extern const std::array<EventTerm, 60> PerigeeTerms;
extern const std::array<EventTerm, 32> ApogeeTerms;
extern const std::array<EventTerm, 44> NorthDeclinationTerms;
extern const std::array<EventTerm, 44> SouthDeclinationTerms;
extern const std::array<SeasonTerm, 24> SeasonTerms;
// Table 27.B, years +1000 to +3000: JDE0 = c0 + c1 Y + c2 Y^2 + c3 Y^3 + c4 Y^4, Y in
// millennia from 2000; rows March equinox, June solstice, September equinox, December solstice.
extern const std::array<std::array<double, 5>, 4> SeasonPolynomials;
