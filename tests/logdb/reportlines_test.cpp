// SPDX-License-Identifier: GPL-3.0-or-later
// The report's lines as golden text, and its split into printed pages.
#include "logdb/reportlines.h"

#include <gtest/gtest.h>

#include <algorithm>

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

TEST(ReportLines, PiecesAndBlanksOfOneRecord)
{
    ReportRecord r;
    r.JulianDate = March10;
    r.Major1 = (19 * 60 + 5) / 1440.0;
    r.Minor1 = 13.5;
    r.Minor2 = -1; // no second minor: printed through the clock text like any other value
    r.GraphicType = 4;
    r.IllumPercent = 7;
    r.MoonAge = 3;
    EXPECT_EQ(ReportLine(1, r, true), "001  03/10/2024  07:05 PM   00000000  01:30 PM  -01:00      "
                                      "4     007  03    \r\n");

    // Without AM/PM the minors are 24-hour; the majors keep their AM/PM form; nulls elsewhere
    // print nothing.
    ReportRecord night;
    night.JulianDate = March10 + 1;
    night.Major1 = 0.0;
    night.Major2 = 0.5;
    night.Minor1 = 0.25;
    night.Minor2 = 23.75;
    night.GraphicType = 0;
    night.IllumPercent = 100;
    night.MoonAge = 29;
    EXPECT_EQ(ReportLine(12, night, false),
              "012  03/11/2024  12:00 AM   12:00 PM  00:15  23:45      "
              "0     100  29    \r\n");
    ReportRecord empty;
    empty.JulianDate = March10;
    EXPECT_EQ(ReportLine(100, empty, true),
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
    ASSERT_EQ(two[1].size(), 4u);
    EXPECT_EQ(two[1][0], "Quillmere DataBase Report - Page # 2");
    EXPECT_EQ(two[1][1], ReportHeading);
    EXPECT_EQ(two[1][2], ReportDashLine());
    EXPECT_EQ(two[1][3], "line 59");

    // A text without its last line end leaves that piece unprinted, as the walk prints only at
    // line ends; 116 lines fill two pages and the count passing 60 opens a third.
    EXPECT_EQ(ReportPages(Lines(2) + "tail").at(0).size(), 5u);
    const auto full = ReportPages(Lines(116));
    ASSERT_EQ(full.size(), 3u);
    EXPECT_EQ(full[1].back(), "line 116");
    EXPECT_EQ(full[2].size(), 3u);

    // As plain text: a form feed before each later page.
    const std::string text = PagesAsText(two);
    EXPECT_EQ(std::count(text.begin(), text.end(), '\f'), 1);
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
