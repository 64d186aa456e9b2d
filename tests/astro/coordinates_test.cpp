// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/astronomy.h"

#include <gtest/gtest.h>

TEST(MeanObliquity, IsLaskarValueAtJ2000)
{
    Astronomy a;
    EXPECT_NEAR(a.MeanObliquity(J2000) / DegToRad * 3600.0, 84381.448, 1e-6);
}

TEST(EclipticToEquatorial, MatchesMeeusExample13aAndAxes)
{
    // Pollux, Meeus example 13.a.
    Astronomy::Equatorial p = Astronomy::EclipticToEquatorial(
        113.215630 * DegToRad, 6.684170 * DegToRad, 23.4392911 * DegToRad);
    EXPECT_NEAR(p.Alpha / DegToRad, 116.328942, 1e-6);
    EXPECT_NEAR(p.Delta / DegToRad, 28.026183, 1e-6);

    p = Astronomy::EclipticToEquatorial(0.0, 0.0, 23.44 * DegToRad);
    EXPECT_NEAR(p.Alpha, 0.0, 1e-15);
    EXPECT_NEAR(p.Delta, 0.0, 1e-15);

    p = Astronomy::EclipticToEquatorial(Pi / 2.0, 0.0, 23.44 * DegToRad);
    EXPECT_NEAR(p.Alpha, Pi / 2.0, 1e-12);
    EXPECT_NEAR(p.Delta / DegToRad, 23.44, 1e-12);

    // Just below the equinox the right ascension wraps to just under 2pi, never negative.
    p = Astronomy::EclipticToEquatorial(-1e-6, 0.0, 23.44 * DegToRad);
    EXPECT_GT(p.Alpha, 6.28);
    EXPECT_LT(p.Alpha, TwoPi);
}
