// The moon picture by its pixels: which side is lit, how much, the southern swap and the
// turned view.
#include "astro/moonpicture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

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
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb p = image.pixel(x, y);
            disc += p != Back ? 1 : 0;
            lit += p == Lit ? 1 : 0;
        }
    }
    return 100.0 * lit / disc;
}

// Points just inside the rim on the left and right, above the printed percentage.
QRgb LeftOf(const QImage& image) { return image.pixel(6, 36); }
QRgb RightOf(const QImage& image) { return image.pixel(74, 36); }

} // namespace

TEST(MoonPicture, TerminatorAspectTableMatchesItsShapes)
{
    EXPECT_EQ(TerminatorAspect[0], 0);
    EXPECT_EQ(TerminatorAspect[25], 1.0);
    EXPECT_EQ(TerminatorAspect[33], 1.91);
    EXPECT_EQ(TerminatorAspect[50], 45);
    EXPECT_TRUE(std::is_sorted(TerminatorAspect.begin(), TerminatorAspect.end()));
}

TEST(MoonPicture, WaxingIsLitOnTheRightAndWaningOnTheLeftInTheNorth)
{
    for (int percent : {10, 20, 50, 51, 80, 90}) {
        const QImage waxing = DrawMoonDisc(Size, Look(percent, 1));
        EXPECT_EQ(RightOf(waxing), Lit) << percent;
        EXPECT_EQ(LeftOf(waxing), Dark) << percent;
        const QImage waning = DrawMoonDisc(Size, Look(percent, 0));
        EXPECT_EQ(LeftOf(waning), Lit) << percent;
        EXPECT_EQ(RightOf(waning), Dark) << percent;
    }
    // 50 and 51 are both a half disc.
    for (int percent : {50, 51}) {
        const QImage half = DrawMoonDisc(Size, Look(percent, 1));
        EXPECT_EQ(half.pixel(34, 30), Dark) << percent;
        EXPECT_EQ(half.pixel(46, 30), Lit) << percent;
    }
}

TEST(MoonPicture, LitAreaFollowsThePercentage)
{
    for (int percent : {10, 30, 50, 70, 90}) {
        for (int waxing : {0, 1})
            EXPECT_NEAR(LitShare(DrawMoonDisc(Size, Look(percent, waxing))), percent, 7)
                << percent << " waxing " << waxing;
    }
    // Waning 30%: shape 70 on the left arc, and only the thin left part is lit.
    const QImage waning = DrawMoonDisc(Size, Look(30, 0));
    EXPECT_EQ(waning.pixel(8, 40), Lit);
    EXPECT_EQ(waning.pixel(40, 40), Dark);
}

TEST(MoonPicture, SouthernHemisphereSwapsTheLitSide)
{
    const QImage crescent = DrawMoonDisc(Size, Look(25, 1, -1));
    EXPECT_EQ(LeftOf(crescent), Lit);
    EXPECT_EQ(RightOf(crescent), Dark);
    const QImage waning = DrawMoonDisc(Size, Look(25, 0, -1));
    EXPECT_EQ(RightOf(waning), Lit);
    EXPECT_EQ(LeftOf(waning), Dark);
}

TEST(MoonPicture, NewIsAllBlackAndFullAllLitInsideABlackOutline)
{
    const QImage fresh = DrawMoonDisc(Size, Look(0, 1));
    const QImage full = DrawMoonDisc(Size, Look(100, 0));
    EXPECT_EQ(LitShare(fresh), 0);
    EXPECT_EQ(fresh.pixel(40, 40), Dark);
    EXPECT_EQ(full.pixel(40, 40), Lit);
    EXPECT_EQ(full.pixel(40, 2), Dark); // the outline at the top, R = 38
    EXPECT_EQ(full.pixel(0, 0), Back);
    EXPECT_GT(LitShare(full), 90);
}

TEST(MoonPicture, PrintsThePercentAsPassedInRed)
{
    const QImage withText = DrawMoon(Size, Look(30, 0), std::nullopt).PicM;
    const QImage disc = DrawMoonDisc(Size, Look(30, 0));
    int red = 0, redRightBelowCentre = 0;
    for (int y = 0; y < Size.height(); ++y) {
        for (int x = 0; x < Size.width(); ++x) {
            const bool isRed = withText.pixel(x, y) == qRgb(255, 0, 0);
            red += isRed ? 1 : 0;
            redRightBelowCentre += isRed && x >= 40 && y >= 40 ? 1 : 0;
        }
    }
    EXPECT_GT(red, 10);
    EXPECT_EQ(red, redRightBelowCentre); // written from the disc's centre
    EXPECT_EQ(withText.pixel(20, 30), disc.pixel(20, 30));
}

TEST(MoonPicture, TurnedViewOnlyWhenTheMoonIsUpAndTheOptionOn)
{
    const double q = std::acos(0.0);
    MoonTurn turn{0.3, q, true, Size};
    EXPECT_FALSE(DrawMoon(Size, Look(50, 1), turn).ToPict.isNull());
    turn.MoonAltitude = -0.01;
    EXPECT_TRUE(DrawMoon(Size, Look(50, 1), turn).ToPict.isNull());
    turn = {0.3, q, false, Size};
    EXPECT_TRUE(DrawMoon(Size, Look(50, 1), turn).ToPict.isNull());
}

TEST(MoonPicture, TurnedViewRotatesByTheParallacticAngle)
{
    // Turned by -q with q = 90 degrees (clockwise on the screen) the lit right half of a
    // waxing half moon goes to the bottom; in the south the angle is q + 180 degrees and the
    // lit left half goes to the top.
    const double q = std::acos(0.0);
    const QImage north = DrawMoon(Size, Look(50, 1), MoonTurn{0.5, q, true, Size}).ToPict;
    EXPECT_EQ(north.pixel(40, 64), Lit);
    EXPECT_EQ(north.pixel(40, 16), Dark);
    const QImage south = DrawMoon(Size, Look(50, 1, -1), MoonTurn{0.5, q, true, Size}).ToPict;
    EXPECT_EQ(south.pixel(40, 16), Lit);
    EXPECT_EQ(south.pixel(40, 64), Dark);
    const QImage level = DrawMoon(Size, Look(50, 1), MoonTurn{0.5, 0.0, true, Size}).ToPict;
    EXPECT_EQ(RightOf(level), Lit);
    EXPECT_EQ(LeftOf(level), Dark);
}

TEST(MoonPicture, RotatePictureCopiesPixelByPixelAndLeavesRowAndColumnZero)
{
    QImage source(10, 10, QImage::Format_RGB32);
    source.fill(qRgb(0, 0, 255));
    source.setPixel(7, 5, qRgb(255, 0, 0));
    QImage target(10, 10, QImage::Format_RGB32);
    target.fill(qRgb(0, 255, 0));
    // A quarter turn counter-clockwise on the screen: (7, 5) -> (5, 3) about (5, 5).
    RotatePicture(source, target, std::acos(0.0), 0, 0, 10, 10, 5, 5, 5, 5);
    EXPECT_EQ(target.pixel(5, 3), qRgb(255, 0, 0));
    EXPECT_EQ(target.pixel(0, 0), qRgb(0, 255, 0));
    EXPECT_EQ(target.pixel(4, 0), qRgb(0, 255, 0));
    EXPECT_EQ(target.pixel(0, 4), qRgb(0, 255, 0));
    EXPECT_EQ(target.pixel(6, 6), qRgb(0, 0, 255));
}
