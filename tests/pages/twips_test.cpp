// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/twips.h"

#include <gtest/gtest.h>

TEST(Twips, FifteenToAPixelAndBgrColours)
{
    EXPECT_EQ(Twips(6390), 426);
    EXPECT_EQ(Twips(300), 20);
    EXPECT_EQ(PixelsToTwips(20), 300);
    EXPECT_EQ(VbColor(0x0000FF), QColor(255, 0, 0)); // 0x00BBGGRR: red is the low byte
    EXPECT_EQ(VbColor(0xC0C0C0), QColor(192, 192, 192));
    EXPECT_EQ(ToVbColor(QColor(0, 0, 255)), 0xFF0000u);
}
