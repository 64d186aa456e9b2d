// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/astronomy.h"

#include <gtest/gtest.h>

#include <cstdio>

TEST(TimeBase, JulianDay0SplitsAtMidnight)
{
    Astronomy a;
    EXPECT_DOUBLE_EQ(a.JulianDay0(2451545.0), 2451544.5);
    EXPECT_DOUBLE_EQ(a.DayFraction, 0.5);
    EXPECT_DOUBLE_EQ(a.JulianDay0(2451544.5), 2451544.5);
    EXPECT_DOUBLE_EQ(a.DayFraction, 0.0);
    EXPECT_DOUBLE_EQ(a.JulianDay0(2451544.2), 2451543.5);
    EXPECT_NEAR(a.DayFraction, 0.7, 1e-9);
}

TEST(TimeBase, CenturiesAndMillennia)
{
    EXPECT_DOUBLE_EQ(CenturiesSinceJ2000(J2000 + 36525.0), 1.0);
    EXPECT_DOUBLE_EQ(MillenniaSinceJ2000(J2000 - 365250.0), -1.0);
}

// Meeus example 12.a: 1987 April 10, 0h UT -> 13h10m46.3668s; 12.b: 19h21m00s UT -> 8h34m57.0896s.
TEST(TimeBase, GreenwichSiderealTimeMatchesMeeus12)
{
    Astronomy a;
    EXPECT_NEAR(a.GreenwichSiderealHours(2446895.5) * 3600.0, (13 * 60 + 10) * 60 + 46.3668, 0.001);
    const double jd = 2446895.5 + (19 + 21 / 60.0) / 24.0;
    EXPECT_NEAR(a.GreenwichSiderealHours(jd) * 3600.0, (8 * 60 + 34) * 60 + 57.0896, 0.01);
}

TEST(TimeBase, DeltaTFromTableHalfwayForOddYearsAndPolynomialAfter2000)
{
    EXPECT_EQ(DeltaTTable.size(), 191u);
    EXPECT_EQ(DeltaTTable.front(), 1240);
    EXPECT_EQ(DeltaTTable[(1872 - 1620) / 2], -10);
    EXPECT_EQ(DeltaTTable.back(), 670);
    EXPECT_NEAR(DeltaTSeconds(CivilToJd(1990, 7, 1)), 56.9, 1e-9);
    EXPECT_NEAR(DeltaTSeconds(CivilToJd(1991, 7, 1)), 57.45, 1e-9);
    EXPECT_NEAR(DeltaTSeconds(CivilToJd(1620, 7, 1)), 124.0, 1e-9);
    EXPECT_NEAR(DeltaTSeconds(CivilToJd(1901, 7, 1)), -1.35, 1e-9); // (-2.7 + 0) / 2
    EXPECT_DOUBLE_EQ(DeltaTSeconds(J2000), 67.0);
    const double T = CenturiesSinceJ2000(CivilToJd(2100, 1, 1));
    EXPECT_NEAR(DeltaTSeconds(CivilToJd(2100, 1, 1)), 67 + 123.5 * T + 32.5 * T * T, 1e-9);
}

TEST(TimeBase, WrapIntoHandlesExactMultiplesAndNegatives)
{
    EXPECT_EQ(WrapInto(-24.0, 24.0), 0.0);
    EXPECT_EQ(WrapInto(-48.0, 24.0), 0.0);
    EXPECT_EQ(WrapInto(24.0, 24.0), 0.0);
    EXPECT_DOUBLE_EQ(WrapInto(25.5, 24.0), 1.5);
    EXPECT_DOUBLE_EQ(WrapInto(-0.25, 24.0), 23.75);
    EXPECT_EQ(WrapInto(0.0, TwoPi), 0.0);
    EXPECT_NEAR(WrapSigned(1.5 * Pi), -0.5 * Pi, 1e-12);
    EXPECT_NEAR(WrapSigned(-1.5 * Pi), 0.5 * Pi, 1e-12);
    EXPECT_NEAR(WrapSigned(Pi), Pi, 1e-12);
}

TEST(TimeBase, FormatClockModes)
{
    EXPECT_EQ(FormatClock(0, 0.5, true), "12:30 AM");
    EXPECT_EQ(FormatClock(0, 12.25, true), "12:15 PM");
    EXPECT_EQ(FormatClock(0, 13.0, true), "01:00 PM");
    EXPECT_EQ(FormatClock(0, 19.0 + 5.5 / 60.0, true), "07:05 PM");
    EXPECT_EQ(FormatClock(3, 0.5, true), "00:30");
    EXPECT_EQ(FormatClock(3, 12.25, true), "12:15");
    EXPECT_EQ(FormatClock(3, 13.0, true), "13:00");
    EXPECT_EQ(FormatClock(0, 6.9999, false), "06:59"); // minutes truncated, not rounded
    EXPECT_EQ(FormatClock(1, 6.5 + 30.4 / 3600.0, false), "06:30:30");
    EXPECT_EQ(FormatClock(1, 6.0 + 59.7 / 3600.0, false), "06:00:59"); // seconds never reach 60
    EXPECT_EQ(FormatClock(0, 24.0 + 10 / 60.0, false), "24:10");
}

// Every minute of the day prints as itself, however its hour was computed (16.9 h is 16:54,
// where flooring 53.99999 minutes gave 16:53).
TEST(TimeBase, FormatClockEveryMinuteOfTheDay)
{
    for (int m = 0; m < 1440; ++m) {
        char want[8];
        std::snprintf(want, sizeof want, "%02d:%02d", m / 60, m % 60);
        ASSERT_EQ(FormatClock(3, m / 60.0, true), want);
        ASSERT_EQ(FormatClock(3, (m * 60.0 + 0.999) / 3600.0, true), want);
    }
    EXPECT_EQ(FormatClock(0, 16.9, true), "04:54 PM");
    EXPECT_EQ(FormatClock(0, 12.0 - 1e-12, true), "12:00 PM");
}

// An event's minute, day and text: 23:59:40 is the next day's 00:00.
TEST(TimeBase, EventMinuteDayAndClock)
{
    const double day = CivilToJd(2024, 12, 31);
    const double late = day + (23.0 * 3600.0 + 59.0 * 60.0 + 40.0) / 86400.0;
    EXPECT_EQ(EventDayJD(late), day + 1.0);
    EXPECT_EQ(EventClock(late, 3, false), "00:00");
    EXPECT_EQ(EventClock(day + 0.5 + 20.0 / 86400.0, 0, true), "12:00 PM");
    EXPECT_EQ(EventClock(day + 16.9 / 24.0, 0, false), "16:54");
}

TEST(TimeBase, JdToTextBothDateOrdersAndBeforeTheSerialEpoch)
{
    EXPECT_EQ(JdToText(2451545.0, true), "01/01/2000 12:00:00");
    EXPECT_EQ(JdToText(2451545.0, false), "01/01/2000 12:00:00");
    EXPECT_EQ(JdToText(2451573.25, true), "01/29/2000 18:00:00");
    EXPECT_EQ(JdToText(2451573.25, false), "29/01/2000 18:00:00");
    EXPECT_EQ(JdToText(SerialEpochJD - 0.75, true), "12/29/1899 06:00:00");
}

TEST(TimeBase, CivilDatesRoundTrip)
{
    EXPECT_DOUBLE_EQ(CivilToJd(2000, 1, 1.5), 2451545.0);
    EXPECT_DOUBLE_EQ(CivilToJd(1899, 12, 30), SerialEpochJD);
    const CivilDate d = JdToCivil(2460310.5); // 2024-01-01
    EXPECT_EQ(d.Year, 2024);
    EXPECT_EQ(d.Month, 1);
    EXPECT_EQ(d.Day, 1);
}
