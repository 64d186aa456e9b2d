// SPDX-License-Identifier: GPL-3.0-or-later
// Tables 47.A and 47.B of Meeus: the Moon's periodic terms.
#pragma once

#include <array>

struct MoonLrTerm {
    int D, M, Mp, F;
    double L; // longitude, degrees (sine)
    double R; // distance, kilometres (cosine)
};

struct MoonBTerm {
    int D, M, Mp, F;
    double B; // latitude, degrees (sine)
};

extern const std::array<MoonLrTerm, 60> MoonLongitudeDistanceTerms;
extern const std::array<MoonBTerm, 60> MoonLatitudeTerms;
