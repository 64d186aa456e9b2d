// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/systemlocale.h"

#include <gtest/gtest.h>

#include <tuple>

// Only a short date that begins with "31" puts the day first; a date that is not numeric
// (the C locale's) keeps the program's month first and slash.
TEST(DateOrder, DayFirstOnlyWhenTheShortDateBeginsWith31)
{
    for (const auto& [text, monthFirst, separator] : {std::tuple{"31.12.97", false, '.'},
                                                      {"12/31/1997", true, '/'},
                                                      {"97-12-31", true, '-'},
                                                      {"31 Dec 1997", true, '/'}}) {
        const DateOrder order = DateOrderFromShortDate(text);
        EXPECT_EQ(order.MonthFirstDates, monthFirst) << text;
        EXPECT_EQ(order.DateSeparator, QChar(separator)) << text;
    }
}
