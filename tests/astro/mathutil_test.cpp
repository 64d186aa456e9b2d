// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/mathutil.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {
constexpr double pi = std::numbers::pi;
}

// The cosine side comes first, as in the program's formulas.
TEST(ArcTan2, TakesCosineSideFirstAndCoversAllQuadrants)
{
    for (const auto& [x, y, angle] : {std::tuple{-1.0, 0.0, pi},
                                      {0.00001, 1.0, pi / 2.0},
                                      {1.0, 1.0, pi / 4.0},
                                      {-1.0, -1.0, -3.0 * pi / 4.0},
                                      {0.0, -2.0, -pi / 2.0}})
        EXPECT_NEAR(ArcTan2(x, y), angle, 1e-15) << x << " " << y;
}

TEST(InverseTrig, MatchesLibraryIncludingEndpoints)
{
    for (double x = -1.0; x <= 1.0; x += 0.125) {
        EXPECT_NEAR(ArcSin(x), std::asin(x), 1e-14) << x;
        EXPECT_NEAR(ArcCos(x), std::acos(x), 1e-14) << x;
    }
}

// y = x^2 sampled at -1, 0, 1 is reproduced at x = 0.5 (Meeus eq. 3.3).
TEST(Interpolate3, ReturnsMiddleValueAtZeroAndFitsParabola)
{
    EXPECT_EQ(Interpolate3(1.5, 2.25, 7.0, 0.0), 2.25);
    EXPECT_NEAR(Interpolate3(1.0, 0.0, 1.0, 0.5), 0.25, 1e-15);
}

// Combinations of angles from the phasor powers agree with direct evaluation.
TEST(MultipleAngles, AgreeWithDirectEvaluation)
{
    const std::array<double, 3> x = {5.123, -2.5, 100.75};
    const MultipleAngles<3, 4> m(x);
    for (int a = -4; a <= 4; ++a)
        for (int b = -4; b <= 4; ++b)
            for (int c = -4; c <= 4; c += 2) {
                const double arg = a * x[0] + b * x[1] + c * x[2];
                const auto p = m.Of({a, b, c});
                EXPECT_NEAR(p.Cos, std::cos(arg), 1e-13);
                EXPECT_NEAR(p.Sin, std::sin(arg), 1e-13);
            }
}
