// SPDX-License-Identifier: GPL-3.0-or-later
// The log's questions on the command line: options read into the browser's form, and the
// selected days and the report as text, on a real year of forecasts.
#include "cli/log/logquery.h"
#include "logdb/logreport.h"
#include "support/filledyear.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

using namespace logtest;

TEST(LogQueryOptions, ConditionsAndOrderFillTheForm)
{
    QueryRequest q;
    ASSERT_FALSE(ReadQueryOptions({{"--months", "3-5"},
                                   {"--best", ""},
                                   {"--weekdays", "sat-sun"},
                                   {"--major1", "5:00 PM-9:00 PM"},
                                   {"--daylight", "13"},
                                   {"--sort", "Major1"}},
                                  q));
    const std::array<bool, ConditionCount> checked = {true,  true,  true,  false, false,
                                                      true,  true,  false, false, false,
                                                      false, false, false, false};
    EXPECT_EQ(q.Form.Checked, checked);
    EXPECT_EQ(q.Form.Values[1] + "," + q.Form.Values[2], "3,5");
    EXPECT_EQ(q.Form.Values[3] + "," + q.Form.Values[4], "8,8");
    EXPECT_EQ(q.Form.Values[Text1Box] + "," + q.Form.Values[Text2Box], "5:00 PM,9:00 PM");
    EXPECT_EQ(q.Form.Values[0], "13");
    EXPECT_EQ(q.SortIndex, 2);

    QueryRequest days;
    ASSERT_FALSE(ReadQueryOptions({{"--weekdays", "mon-fri"}, {"--sort", "taken"}}, days));
    EXPECT_EQ(days.Form.Values[3] + "," + days.Form.Values[4], "2,6");
    EXPECT_EQ(days.SortIndex, 5);
    QueryRequest none;
    ASSERT_FALSE(ReadQueryOptions({}, none));
    EXPECT_EQ(none.Form.Checked, (std::array<bool, ConditionCount>{}));
    EXPECT_EQ(none.SortIndex, 1);
}

// Every condition's range at both ends and beyond, and the other refusals, from a data file;
// a value that is not a time between two clock times is refused too.
TEST(LogQueryOptions, TakesBothEndsOfEveryRangeAndRefusesWhatTheWindowRefuses)
{
    const auto error = [](const std::map<std::string, std::string>& options) {
        QueryRequest q;
        return ReadQueryOptions(options, q).value_or("ok");
    };
    std::ifstream table(QUILLMERE_QUERY_OPTIONS);
    int rows = 0;
    for (std::string line; std::getline(table, line); ++rows) {
        if (line.empty() || line[0] == '#') {
            --rows;
            continue;
        }
        const auto bar = line.find('|'), second = line.find('|', bar + 1);
        EXPECT_EQ(error({{line.substr(0, bar), line.substr(bar + 1, second - bar - 1)}}),
                  line.substr(second + 1));
    }
    EXPECT_EQ(rows, 20);
    EXPECT_NE(error({{"--either-major", "12:00 AM# or #1:00 AM-2:00 AM"}}), "ok");
}

TEST(LogQueryRun, SelectedDaysAndReportAsText)
{
    const QString path = MakeFilledYearFile("logquery");
    QueryRequest q;
    ASSERT_FALSE(ReadQueryOptions(
        {{"--months", "3-5"}, {"--weekdays", "sat-sun"}, {"--rated", ""}, {"--sort", "major1"}},
        q));
    const Selection selection = SelectDataWhere(path, q.Form, q.SortIndex);
    ASSERT_TRUE(selection.Error.isEmpty());
    EXPECT_TRUE(selection.Refused.isEmpty());
    QString report;
    ASSERT_TRUE(ReadReportText(path, selection.RecordSource, true, report));

    std::istringstream text(QueryText(report, selection));
    std::string line;
    std::getline(text, line);
    EXPECT_EQ(line, "Sorted by Major1");
    std::getline(text, line);
    EXPECT_EQ(line.substr(0, 10), "#     Date");
    const auto expected = PlainRows(path, "SELECT strftime('%m/%d/%Y', JulianDate) FROM table1 "
                                          "WHERE Month BETWEEN 3 AND 5 AND DayOfWeek_ IN (1, 7) "
                                          "AND GraphicType > 0 ORDER BY Major1, JulianDate");
    ASSERT_FALSE(expected.empty());
    std::size_t n = 0;
    for (; std::getline(text, line); ++n) {
        ASSERT_LT(n, expected.size());
        EXPECT_EQ(line.substr(5, 10), expected[n][0].toString().toStdString());
    }
    EXPECT_EQ(n, expected.size());

    // The report as printed: the appended dash line after the last day, on one page here.
    const std::string pages = ReportText(report);
    EXPECT_EQ(pages.find('\f'), std::string::npos);
    EXPECT_EQ(pages.substr(0, 36), "Quillmere DataBase Report - Page # 1");
    EXPECT_EQ(pages.substr(pages.size() - 78), "\n" + std::string(76, '-') + "\n");
}
