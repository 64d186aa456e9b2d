// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/vbformat.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>

// Every case of text/data/vbformat.txt.
TEST(VbFormat, NumbersAndDatesAsVisualBasicWritesThem)
{
    std::ifstream file(QUILLMERE_VBFORMAT);
    ASSERT_TRUE(file) << QUILLMERE_VBFORMAT;
    int cases = 0;
    for (std::string line; std::getline(file, line);) {
        std::istringstream fields(line);
        std::string kind, value, pattern, text;
        if (line.starts_with('#') || !std::getline(fields, kind, '|') ||
            !std::getline(fields, value, '|') || !std::getline(fields, pattern, '|'))
            continue;
        std::getline(fields, text);
        const std::size_t plus = value.find('+');
        const std::string got = kind == "date"
                                    ? VbFormatDate(std::stod(value.substr(0, plus)) +
                                                       std::stod(value.substr(plus + 1)) / 86400.0,
                                                   pattern)
                                    : VbFormat(std::stod(value), pattern);
        EXPECT_EQ(got, text) << line;
        ++cases;
    }
    EXPECT_GE(cases, 30);
}
