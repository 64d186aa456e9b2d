// SPDX-License-Identifier: GPL-3.0-or-later
// The Earth's periodic terms of VSOP87 (version D), the selection of Meeus's Appendix III.
#pragma once

#include <array>

struct VsopTerm {
    double A; // radians or astronomical units
    double B; // radians
    double C; // radians per Julian millennium
};

extern const std::array<VsopTerm, 64> Vsop87EarthL0;
extern const std::array<VsopTerm, 34> Vsop87EarthL1;
extern const std::array<VsopTerm, 20> Vsop87EarthL2;
extern const std::array<VsopTerm, 7> Vsop87EarthL3;
extern const std::array<VsopTerm, 3> Vsop87EarthL4;
extern const std::array<VsopTerm, 1> Vsop87EarthL5;
extern const std::array<VsopTerm, 5> Vsop87EarthB0;
extern const std::array<VsopTerm, 2> Vsop87EarthB1;
extern const std::array<VsopTerm, 40> Vsop87EarthR0;
extern const std::array<VsopTerm, 10> Vsop87EarthR1;
extern const std::array<VsopTerm, 6> Vsop87EarthR2;
extern const std::array<VsopTerm, 2> Vsop87EarthR3;
extern const std::array<VsopTerm, 1> Vsop87EarthR4;
