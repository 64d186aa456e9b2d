// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/common/arguments.h"

#include <gtest/gtest.h>

// The printed pages: calendar and glance need the month and a PDF file; the month list takes
// --pdf as an option; the text commands refuse it.
TEST(ForecastArguments, PrintedPagesNeedAMonthAndAFile)
{
    auto parsed = ParseArguments(
        {"calendar", "--year", "2024", "--month", "2", "--location", "3", "--pdf", "feb.pdf"}, 2026,
        11);
    ASSERT_TRUE(std::holds_alternative<ForecastRequest>(parsed));
    const ForecastRequest& r = std::get<ForecastRequest>(parsed);
    EXPECT_EQ(r.What, Command::CalendarPage);
    EXPECT_EQ(r.Year, 2024);
    EXPECT_EQ(r.Month, 2);
    EXPECT_EQ(r.Pdf, "feb.pdf");
    EXPECT_EQ(r.StoredLocation, 3);

    parsed = ParseArguments({"month", "--pdf", "list.pdf"}, 2026, 11);
    ASSERT_TRUE(std::holds_alternative<ForecastRequest>(parsed));
    EXPECT_EQ(std::get<ForecastRequest>(parsed).Pdf, "list.pdf");
    EXPECT_EQ(std::get<ForecastRequest>(parsed).Month, 11);

    for (const std::vector<std::string>& refused :
         {std::vector<std::string>{"glance", "--year", "2024", "--month", "2"},
          {"calendar", "--pdf", "x.pdf"},
          {"glance", "--year", "2024", "--month", "13", "--pdf", "x.pdf"},
          {"events", "--year", "2024", "--pdf", "x.pdf"},
          {"calendar", "--year", "2024", "--month", "2", "--pdf"}})
        EXPECT_TRUE(std::holds_alternative<UsageError>(ParseArguments(refused, 2026, 11)))
            << refused[0] << " " << refused.back();
}
