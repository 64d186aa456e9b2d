// SPDX-License-Identifier: GPL-3.0-or-later
// The log's questions on the command line: options read into the browser's form.
#include "cli/log/logquery.h"
#include "support/testenv.h"

#include <gtest/gtest.h>

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
}

// Every condition's range at both ends and beyond, and the other refusals, from a data file;
// a value that is not a time between two clock times is refused too.
TEST(LogQueryOptions, TakesBothEndsOfEveryRangeAndRefusesWhatTheWindowRefuses)
{
    const auto error = [](const std::map<std::string, std::string>& options) {
        QueryRequest q;
        return ReadQueryOptions(options, q).value_or("ok");
    };
    const auto rows = testenv::DataRows(QUILLMERE_QUERY_OPTIONS);
    for (const QStringList& row : rows)
        EXPECT_EQ(error({{row[0].toStdString(), row[1].toStdString()}}), row[2].toStdString());
    EXPECT_EQ(rows.size(), 20u);
    EXPECT_NE(error({{"--either-major", "12:00 AM# or #1:00 AM-2:00 AM"}}), "ok");
}
