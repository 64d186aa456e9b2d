// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/astronomy.h"
#include "astro/perihelion.h"
#include "astro/timebase.h"

#include <gtest/gtest.h>

namespace {

constexpr double Minute = 1.0 / 1440.0;

// Meeus example 38.a (Venus, 1978) and 38.b (Mars, 2032): the book prints three decimals.
TEST(Perihelion, WorkedExamplesOfTheBook)
{
    EXPECT_EQ(ApsisCycle(Planet::Venus, 1978.79, false), -35.0);
    EXPECT_NEAR(ApsisJDE(Planet::Venus, -35.0), 2443873.704, 0.0005);
    EXPECT_EQ(ApsisCycle(Planet::Mars, 2032.5, true), 16.5);
    EXPECT_NEAR(ApsisJDE(Planet::Mars, 16.5), 2463530.456, 0.0005);
}

// The Earth's passages against the US Naval Observatory's published table ("Earth's Seasons and
// Apsides"), universal time, within 30 minutes: the Moon moves the Earth's passage by up to a
// day and a half from the barycentre's, which the engine must follow.
TEST(Perihelion, EarthOf2024And2025AgreeWithPublishedTable)
{
    struct Row {
        int Year;
        double Perihelion, Aphelion; // JD UT
    };
    const Row rows[] = {
        {2024, CivilToJd(2024, 1, 3) + (39.0 / 60.0) / 24.0,
         CivilToJd(2024, 7, 5) + (5.0 + 6.0 / 60.0) / 24.0},
        {2025, CivilToJd(2025, 1, 4) + (13.0 + 28.0 / 60.0) / 24.0,
         CivilToJd(2025, 7, 3) + (19.0 + 55.0 / 60.0) / 24.0},
    };
    Astronomy engine;
    for (const Row& r : rows) {
        engine.EarthApsides(r.Year);
        EXPECT_NEAR(engine.EarthApsisTimes[0], r.Perihelion, 30.0 * Minute) << r.Year;
        EXPECT_NEAR(engine.EarthApsisTimes[1], r.Aphelion, 30.0 * Minute) << r.Year;
    }
}

} // namespace
