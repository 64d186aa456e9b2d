// SPDX-License-Identifier: GPL-3.0-or-later
// The Moon's distance from the main problem of the lunar theory ELP 2000-82 (M. Chapront-Touze
// and J. Chapront): its 154 periodic terms of 20 metres or more. Table 47.A keeps the 46 down to
// 1.1 km; the ones it leaves out move the flat perigees by up to eight minutes.
#pragma once

#include <array>

struct MoonDistanceTerm {
    int D, M, Mp, F;
    double R; // kilometres (cosine)
};

// The mean distance the periodic terms swing about, kilometres.
constexpr double MoonMeanDistanceKm = 385000.52899;

extern const std::array<MoonDistanceTerm, 154> MoonDistanceTerms;
