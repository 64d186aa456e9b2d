// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/vbformat.h"

#include <gtest/gtest.h>

TEST(VbFormat, DigitPlaceholders)
{
    EXPECT_EQ(VbFormat(5, "0#"), "05");
    EXPECT_EQ(VbFormat(12, "0#"), "12");
    EXPECT_EQ(VbFormat(123, "0#"), "123");
    EXPECT_EQ(VbFormat(7, "00"), "07");
    EXPECT_EQ(VbFormat(7, "000"), "007");
    EXPECT_EQ(VbFormat(2.5, "0"), "3"); // half away from zero, not to even
    EXPECT_EQ(VbFormat(-2.5, "0"), "-3");
    EXPECT_EQ(VbFormat(0, "#####"), "");
    EXPECT_EQ(VbFormat(1234.5, "######"), "1235");
}

TEST(VbFormat, DecimalsRoundOnTheDecimalForm)
{
    EXPECT_EQ(VbFormat(92.4249, "##0.#0"), "92.42");
    EXPECT_EQ(VbFormat(0.5, "##0.#0"), "0.50");
    EXPECT_EQ(VbFormat(31.25, "#0.#0"), "31.25");
    EXPECT_EQ(VbFormat(80.2, "###.00"), "80.20");
    EXPECT_EQ(VbFormat(0.5, "###.00"), ".50");
    EXPECT_EQ(VbFormat(-0.5, "##.00"), "-.50");
    EXPECT_EQ(VbFormat(1.005, "##.00"), "1.01"); // printf gives 1.00
    EXPECT_EQ(VbFormat(99.995, "##.00"), "100.00");
    EXPECT_EQ(VbFormat(-0.001, "##.00"), ".00");
}

TEST(VbFormat, DatePatterns)
{
    // 2024-03-10 19:05:30 is serial 45361 + time.
    const double serial = 45361.0 + (19 * 3600 + 5 * 60 + 30) / 86400.0;
    EXPECT_EQ(VbFormatDate(serial, "mm/dd/yyyy"), "03/10/2024");
    EXPECT_EQ(VbFormatDate(serial, "dd/mm/yyyy hh:nn:ss"), "10/03/2024 19:05:30");
    EXPECT_EQ(VbFormatDate(serial, "mm/dd/yyyy hh:nn:ss"), "03/10/2024 19:05:30");
    EXPECT_EQ(VbFormatDate(serial, "hh:mm AMPM"), "07:05 PM");
    EXPECT_EQ(VbFormatDate(serial, "hh:mm AM/PM"), "07:05 PM");
    EXPECT_EQ(VbFormatDate(serial, "h:nn AM/PM"), "7:05 PM");
    EXPECT_EQ(VbFormatDate(serial, "hh:nn"), "19:05");
    EXPECT_EQ(VbFormatDate(serial, "hh:nn AMPM"), "07:05 PM");
    EXPECT_EQ(VbFormatDate(serial, "ddd, mmmm,dd,yyyy"), "Sun, March,10,2024");
    EXPECT_EQ(VbFormatDate(serial, "y"), "70");
    EXPECT_EQ(VbFormatDate(serial, "w"), "1");
    EXPECT_EQ(VbFormatDate(serial, "m"), "3");
    EXPECT_EQ(VbFormatDate(0.0, "hh:mm AMPM"), "12:00 AM");
    EXPECT_EQ(VbFormatDate(0.5, "h:nn AM/PM"), "12:00 PM");
    EXPECT_EQ(VbFormatDate(1.0 - 0.2 / 86400.0, "mm/dd/yyyy hh:nn:ss"), "12/31/1899 00:00:00");
}
