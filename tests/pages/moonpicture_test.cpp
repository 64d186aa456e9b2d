// SPDX-License-Identifier: GPL-3.0-or-later
// The moon picture by its pixels: which side is lit, how much, the southern swap and the
// turned view.
#include "astro/astronomy.h"
#include "pages/moonpicture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <tuple>
#include <vector>

namespace {

constexpr QSize Size(80, 80);
constexpr std::uint32_t Yellow = 0x00FFFF; // 0x00BBGGRR
const QRgb Lit = qRgb(255, 255, 0);
const QRgb Dark = qRgb(0, 0, 0);
const QRgb Back = qRgb(192, 192, 192);

MoonLook Look(int percent, int waxing, int south = 0)
{
    MoonLook look;
    look.IllumPercent = std::int16_t(percent);
    look.Waxing = std::int16_t(waxing);
    look.SouthernHemisphere = std::int16_t(south);
    look.MoonColor = Yellow;
    return look;
}

// Share of the disc's pixels in the lit colour, in percent.
double LitShare(const QImage& image)
{
    int lit = 0, disc = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            disc += image.pixel(x, y) != Back ? 1 : 0;
            lit += image.pixel(x, y) == Lit ? 1 : 0;
        }
    return 100.0 * lit / disc;
}

} // namespace

// Waxing is lit on the right and waning on the left in the north, the other way round in the
// south; 50 and 51 are both a half disc. The lit share of the disc follows the percentage; new
// is all black and full all lit inside a black outline (the top at R = 38).
TEST(MoonPicture, LitSideAndShareByPhaseAndHemisphere)
{
    for (int percent : {0, 10, 25, 50, 51, 70, 90, 100})
        for (int waxing : {0, 1})
            for (int south : {0, -1}) {
                const QImage disc = DrawMoonDisc(Size, Look(percent, waxing, south));
                const bool right = (waxing == 1) == (south == 0);
                if (percent > 0 && percent < 100) { // just inside the rim, above the percent
                    EXPECT_EQ(disc.pixel(74, 36), right ? Lit : Dark) << percent << waxing << south;
                    EXPECT_EQ(disc.pixel(6, 36), right ? Dark : Lit) << percent << waxing << south;
                }
                EXPECT_NEAR(LitShare(disc), percent, percent == 0 ? 0 : 7) << percent << waxing;
            }
    for (int percent : {50, 51}) {
        const QImage half = DrawMoonDisc(Size, Look(percent, 1));
        EXPECT_EQ(half.pixel(34, 30), Dark) << percent;
        EXPECT_EQ(half.pixel(46, 30), Lit) << percent;
    }
    const QImage full = DrawMoonDisc(Size, Look(100, 0));
    EXPECT_EQ(full.pixel(40, 2), Dark);
    EXPECT_EQ(full.pixel(0, 0), Back);
}

// Without a box: a white full moon on any background shows by its rim, in the rim's colour,
// and nothing around the disc is painted; at any size the percentage is written in red from
// the disc's centre, at least two pixels clear of the rim.
TEST(MoonPicture, RimInsteadOfABoxAndThePercentInRed)
{
    for (const QSize size : {Size, QSize(120, 120), QSize(300, 300)}) {
        MoonLook look = Look(100, 0);
        look.MoonColor = 0xFFFFFF;
        look.Rim = 0x00FF00; // green, so that no other part can be taken for it
        const QImage full = DrawMoon(size, look, std::nullopt).PicM;
        const int c = size.width() / 2, R = c - 2;
        EXPECT_EQ(qAlpha(full.pixel(0, 0)), 0) << size.width();
        EXPECT_EQ(qAlpha(full.pixel(c, 0)), 0) << size.width();
        EXPECT_EQ(full.pixel(c, c - R), qRgb(0, 255, 0)) << size.width();
        EXPECT_EQ(full.pixel(c, c - R / 2), qRgb(255, 255, 255)) << size.width();
        int red = 0;
        for (int y = 0; y < size.height(); ++y)
            for (int x = 0; x < size.width(); ++x)
                if (full.pixel(x, y) == qRgb(255, 0, 0)) {
                    ++red;
                    ASSERT_TRUE(x >= c && y >= c) << size.width() << " at " << x << "," << y;
                    ASSERT_LT(std::hypot(x + 0.5 - c, y + 0.5 - c), R - 2.0)
                        << size.width() << " at " << x << "," << y;
                }
        EXPECT_GT(red, 10) << size.width();
    }
}

namespace {
// Screen direction (radians counter-clockwise from up) from the disc's centre to the centre
// of its lit pixels.
double LitDirection(const QImage& image)
{
    double sx = 0.0, sy = 0.0;
    int n = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) == Lit) {
                sx += x - image.width() / 2.0;
                sy += y - image.height() / 2.0;
                ++n;
            }
    return std::atan2(-sx / n, -sy / n);
}

// Where the Sun stands seen from the Moon on the sky, zenith up and azimuth growing to the
// right as an observer facing the Moon sees it: the initial bearing of the great circle
// from the Moon to the Sun in the horizon's coordinates, counter-clockwise from up.
double SunDirection(const SkyAtHour& sky)
{
    const double dA = sky.SunAzimuth - sky.MoonAzimuth, hs = sky.SunAltitude, hm = sky.MoonAltitude;
    const double right = std::sin(dA) * std::cos(hs);
    const double up = std::cos(hm) * std::sin(hs) - std::sin(hm) * std::cos(hs) * std::cos(dA);
    return std::atan2(-right, up);
}

// Differences in degrees between the turned picture's lit side and the Sun's direction over
// a year of hours when the Moon is up and neither new nor full.
std::vector<double> TurnedErrors(double lonWest, double latNorth, int zone)
{
    Astronomy a;
    a.Site.SetPlace(lonWest, latNorth, std::int16_t(zone));
    std::vector<double> errors;
    const double start = CivilToJd(2024, 1, 1);
    for (int d = 0; d < 366; d += 2) {
        for (double hour : {3.0, 7.0, 11.0, 15.0, 19.0, 23.0}) {
            a.Site.HourInstant = hour / 24.0 + a.Site.ZoneDays;
            a.ComputeSunDay(start + d);
            a.ComputeDay(start + d);
            const DayForecast& f = a.Forecast;
            if (f.SkyPosition.MoonAltitude < 0.05 || f.IllumPercent < 15 || f.IllumPercent > 85)
                continue;
            const MoonLook look = Look(f.IllumPercent, f.Waxing, latNorth < 0 ? -1 : 0);
            const MoonTurn turn{f.SkyPosition.MoonAltitude, f.MoonParallacticAngle, true, Size};
            const double diff =
                LitDirection(DrawMoon(Size, look, turn).ToPict) - SunDirection(f.SkyPosition);
            errors.push_back(std::fabs(std::remainder(diff, 2.0 * std::numbers::pi)) * 180.0 /
                             std::numbers::pi);
        }
    }
    std::sort(errors.begin(), errors.end());
    return errors;
}
} // namespace

// The turned picture shows the Moon as it stands in the sky, its lit side towards the Sun,
// north and south of the equator alike.
TEST(MoonPicture, TurnedLitSideFacesTheSunInBothHemispheres)
{
    for (const auto& [lon, lat, zone] :
         {std::tuple{-151.21, -33.87, -10}, std::tuple{92.42, 31.25, 6}}) {
        const std::vector<double> errors = TurnedErrors(lon, lat, zone);
        ASSERT_GT(errors.size(), 100u);
        EXPECT_LT(errors[errors.size() / 2], 30.0) << "median at latitude " << lat;
        EXPECT_LT(errors.back(), 45.0) << "largest at latitude " << lat;
    }
}
