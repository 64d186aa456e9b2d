// SPDX-License-Identifier: GPL-3.0-or-later
#include "logdb/csvread.h"

#include <gtest/gtest.h>

// Lines as RFC 4180 writes them: a field is quoted when it holds a comma, a double quote or a
// line break, a quote inside is doubled, and the line ends in CR LF. Each reads back whole.
TEST(Csv, QuotesAsRfc4180AndReadsBackWhatItWrote)
{
    const struct {
        std::vector<std::string> Fields;
        std::string Line;
    } cases[] = {
        {{"Pike", "3", ""}, "Pike,3,\r\n"},
        {{"a, b", "say \"hi\"", "two\nlines"}, "\"a, b\",\"say \"\"hi\"\"\",\"two\nlines\"\r\n"},
        {{"\"", "cr\r"}, "\"\"\"\",\"cr\r\"\r\n"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(CsvLine(c.Fields), c.Line);
        const std::vector<CsvRecord> read = ReadCsv(c.Line);
        ASSERT_EQ(read.size(), 1u) << c.Line;
        EXPECT_EQ(read[0].Fields, c.Fields) << c.Line;
    }
}
