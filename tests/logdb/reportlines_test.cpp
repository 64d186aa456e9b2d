// SPDX-License-Identifier: GPL-3.0-or-later
// The report's lines as golden text, and its split into printed pages.
#include "logdb/reportlines.h"

#include <gtest/gtest.h>

namespace {

constexpr double March10 = 45361.0; // date serial of 10 March 2024

std::string Lines(int count)
{
    std::string text;
    for (int i = 1; i <= count; ++i)
        text += "line " + std::to_string(i) + "\r\n";
    return text;
}

} // namespace

// Fields in order: date, Major1, Major2, Minor1, Minor2, rating, illumination, moon age. With
// AM/PM the minors are clock texts like any other value (-1 too); without it 24-hour; the majors
// keep their AM/PM form; nulls print as their placeholder or nothing.
TEST(ReportLines, PiecesAndBlanksOfOneRecord)
{
    const ReportRecord evening{March10, (19 * 60 + 5) / 1440.0, {}, 13.5, -1, 4, 7, 3};
    EXPECT_EQ(ReportLine(1, evening, true), "001  03/10/2024  07:05 PM   00000000  01:30 PM  "
                                            "-01:00      4     007  03    \r\n");
    const ReportRecord night{March10 + 1, 0.0, 0.5, 0.25, 23.75, 0, 100, 29};
    EXPECT_EQ(ReportLine(12, night, false), "012  03/11/2024  12:00 AM   12:00 PM  00:15  23:45    "
                                            "  0     100  29    \r\n");
    EXPECT_EQ(ReportLine(100, ReportRecord{March10}, true),
              "100  03/10/2024  00000000   00000000  00000000  00000000" + std::string(17, ' ') +
                  "\r\n");
}

TEST(ReportPaging, FiftyEightLinesAPageAfterTheThreeTitleLines)
{
    // No text: one page with its title lines only.
    const auto none = ReportPages("");
    ASSERT_EQ(none.size(), 1u);
    EXPECT_EQ(none[0], (std::vector<std::string>{ReportTitleLine(1), std::string(ReportHeading),
                                                 ReportDashLine()}));

    const auto two = ReportPages(Lines(59));
    ASSERT_EQ(two.size(), 2u);
    ASSERT_EQ(two[0].size(), 61u);
    EXPECT_EQ(two[0][3], "line 1");
    EXPECT_EQ(two[0][60], "line 58");

    // A text without its last line end leaves that piece unprinted, as the walk prints only at
    // line ends; 116 lines fill two pages and the count passing 60 opens a third.
    EXPECT_EQ(ReportPages(Lines(2) + "tail").at(0).size(), 5u);
    const auto full = ReportPages(Lines(116));
    ASSERT_EQ(full.size(), 3u);
    EXPECT_EQ(full[1].back(), "line 116");
    EXPECT_EQ(full[2].size(), 3u);

    // As plain text: a form feed before each later page.
    const std::string text = PagesAsText(two);
    EXPECT_EQ(text.substr(text.find('\f')), "\fQuillmere DataBase Report - Page # 2\n" +
                                                std::string(ReportHeading) + "\n" +
                                                std::string(76, '-') + "\nline 59\n");
}

TEST(ReportLines, ACatchLineUnderItsDay)
{
    ReportCatch pike{"06:15:00", "Pike", 2, 812, 4350, true, "Spinnerbait"};
    EXPECT_EQ(CatchReportLine(pike),
              "     06:15  Pike x2  81.2 cm  4.35 kg  released  Spinnerbait\r\n");
    const ReportCatch bare{"", "", 1, std::nullopt, std::nullopt, false, ""};
    EXPECT_EQ(CatchReportLine(bare), "            (no species) x1  kept\r\n");
}
