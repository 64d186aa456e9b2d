// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/astronomy.h"
#include "astro/moon_terms.h"
#include "astro/nutation_terms.h"
#include "astro/vsop87_earth_terms.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {
constexpr double Arcsec = DegToRad / 3600.0;
double Deg(double rad) { return rad / DegToRad; }
double Dms(double d, double m, double s) { return d + m / 60.0 + s / 3600.0; }
} // namespace

TEST(Terms, TablesHoldEveryRowOfTheBook)
{
    static_assert(NutationTerms.size() == 63);
    static_assert(MoonLongitudeDistanceTerms.size() == 60 && MoonLatitudeTerms.size() == 60);
    static_assert(Vsop87EarthL0.size() + Vsop87EarthL1.size() + Vsop87EarthL2.size() +
                      Vsop87EarthL3.size() + Vsop87EarthL4.size() + Vsop87EarthL5.size() +
                      Vsop87EarthB0.size() + Vsop87EarthB1.size() + Vsop87EarthR0.size() +
                      Vsop87EarthR1.size() + Vsop87EarthR2.size() + Vsop87EarthR3.size() +
                      Vsop87EarthR4.size() ==
                  195);
    EXPECT_DOUBLE_EQ(NutationTerms[0].S, -17.1996);
    EXPECT_DOUBLE_EQ(NutationTerms[0].CT, 0.00089);
    int cosines = 0;
    for (const NutationTerm& t : NutationTerms)
        cosines += t.C != 0.0;
    EXPECT_EQ(cosines, 38);
    EXPECT_DOUBLE_EQ(MoonLongitudeDistanceTerms[0].R, -20905.355);
    EXPECT_DOUBLE_EQ(MoonLongitudeDistanceTerms[59].R, 8.752);
    EXPECT_DOUBLE_EQ(MoonLatitudeTerms[0].B, 5.128122);
    EXPECT_DOUBLE_EQ(Vsop87EarthL0[1].A, 0.03341656456);
    EXPECT_DOUBLE_EQ(Vsop87EarthL0[3].C, 5753.3848848968);
}

// Meeus example 22.a: 1987 April 10, 0h TD.
TEST(Nutation, MatchesMeeusExample22a)
{
    Astronomy a;
    a.ComputeNutation(2446895.5);
    EXPECT_NEAR(a.NutationLongitude / Arcsec, -3.788, 0.0015);
    EXPECT_NEAR(a.NutationObliquity / Arcsec, 9.443, 0.0015);
    const double eps0 = a.MeanObliquity(2446895.5);
    EXPECT_NEAR(Deg(eps0), Dms(23, 26, 27.407), 0.001 / 3600.0);
    EXPECT_NEAR(Deg(eps0 + a.NutationObliquity), Dms(23, 26, 36.850), 0.002 / 3600.0);
}

// Meeus example 25.b: 1992 October 13.0 TD, with the VSOP87 theory.
TEST(SunPosition, MatchesMeeusExample25b)
{
    Astronomy a;
    const SunPlace p = a.SunPosition(2448908.5);
    EXPECT_NEAR(p.R, 0.99760775, 2e-8);
    EXPECT_NEAR(Deg(p.Lambda), Dms(199, 54, 21.818), 1.0 / 3600.0);
    EXPECT_NEAR(Deg(p.Beta) * 3600.0, 0.62, 0.01); // the Appendix III terms
    EXPECT_NEAR(Deg(p.Alpha) / 15.0, Dms(13, 13, 30.749), 0.05 / 3600.0);
    EXPECT_NEAR(Deg(p.Delta), -Dms(7, 47, 1.74), 0.5 / 3600.0);
}

TEST(SunPosition, LongitudeStaysInRangeAcrossTheEquinox)
{
    Astronomy a;
    const double equinox = 2460389.63; // 2024 March 20, about 3h UT
    for (double jd = equinox - 0.2; jd < equinox + 0.2; jd += 0.001) {
        const double lambda = a.SunPosition(jd).Lambda;
        ASSERT_GE(lambda, 0.0);
        ASSERT_LT(lambda, TwoPi);
    }
}

TEST(SunPosition, LowPrecisionTheoryAgreesWithinAHundredthOfADegree)
{
    Astronomy a;
    double worst = 0.0;
    for (double jd = CivilToJd(1900, 1, 1); jd < CivilToJd(2100, 1, 1); jd += 97.3) {
        const SunPlace p = a.SunPosition(jd);
        // Compare geometric longitudes: undo nutation and aberration of the apparent one.
        const double geometric = p.Lambda - a.NutationLongitude + 20.4898 * Arcsec / p.R;
        const double low = Astronomy::SunLowPrecision(jd).Longitude;
        worst = std::max(worst, std::fabs(Deg(WrapSigned(low - geometric))));
    }
    EXPECT_LT(worst, 0.01);
}

// Meeus example 47.a: 1992 April 12, 0h TD.
TEST(MoonPosition, MatchesMeeusExample47a)
{
    Astronomy a;
    const MoonPlace p = a.MoonPosition(2448724.5);
    EXPECT_NEAR(Deg(p.Lambda), 133.167265, 0.00001);
    EXPECT_NEAR(Deg(p.Beta), -3.229126, 0.000001);
    EXPECT_NEAR(p.Distance, 368409.7, 0.1);
    EXPECT_NEAR(Deg(p.Parallax), 0.991990, 0.000001);
    EXPECT_NEAR(Deg(p.Alpha), 134.688470, 0.00001);
    EXPECT_NEAR(Deg(p.Delta), 13.768368, 0.00001);
}

// Meeus example 48.a: 1992 April 12, 0h TD, k = 0.6786 and chi about 285 degrees (waxing).
TEST(MoonPosition, IlluminatedFractionAndBrightLimbOfExample48a)
{
    Astronomy a;
    const MoonPlace p = a.MoonPosition(2448724.5);
    EXPECT_NEAR(p.IllumFraction, 0.6786, 0.001);
    EXPECT_NEAR(Deg(p.BrightLimb), 285.0, 0.2);
}

// Meeus example 13.b: Venus seen from Washington, 1987 April 10, 19h21m UT.
TEST(Coordinates, HorizontalPositionMatchesMeeusExample13b)
{
    Astronomy a;
    const double alpha = Dms(23, 9, 16.641) * 15.0 * DegToRad;
    const double delta = -Dms(6, 43, 11.61) * DegToRad;
    const Horizontal h =
        a.HorizontalPosition(2446896.30625, alpha, delta, Dms(38, 55, 17), Dms(77, 3, 56));
    EXPECT_NEAR(Deg(h.Azimuth), 68.0337 + 180.0, 0.0005); // the book counts from the south
    EXPECT_NEAR(Deg(h.Altitude), 15.1249, 0.0005);
}

TEST(Coordinates, ParallacticAngleIsZeroOnTheMeridianAndSignedByHourAngle)
{
    Astronomy a;
    const double jd = 2451545.0;
    const double lst =
        a.GreenwichSiderealHours(jd) * 15.0 * DegToRad; // Greenwich, no nutation term
    const double east = a.ParallacticAngleNow(jd, lst + 0.5, 0.2, 40.0, 0.0);
    const double west = a.ParallacticAngleNow(jd, lst - 0.5, 0.2, 40.0, 0.0);
    EXPECT_LT(east, 0.0); // rising, east of the meridian
    EXPECT_GT(west, 0.0);
}
