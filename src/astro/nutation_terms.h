// SPDX-License-Identifier: GPL-3.0-or-later
// Table 22.A of Meeus: the 63 periodic terms of nutation.
#pragma once

#include <array>

struct NutationTerm {
    int D, M, Mp, F, Omega; // multiples of the fundamental arguments
    double S, ST;           // longitude: (S + ST T) sin(argument), arcseconds
    double C, CT;           // obliquity: (C + CT T) cos(argument), arcseconds
};

extern const std::array<NutationTerm, 63> NutationTerms;
