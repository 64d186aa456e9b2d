// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/textrows.h"
#include "text/vbformat.h"

#include <gtest/gtest.h>

#include <string>

// Every case of text/data/vbformat.txt.
TEST(VbFormat, NumbersAndDatesAsVisualBasicWritesThem)
{
    const auto rows = textrows::Read(QUILLMERE_VBFORMAT, '|');
    for (const auto& [line, f] : rows) {
        const std::string &kind = f.at(0), &value = f.at(1), &pattern = f.at(2), &text = f.at(3);
        const std::size_t plus = value.find('+');
        const std::string got = kind == "date"
                                    ? VbFormatDate(std::stod(value.substr(0, plus)) +
                                                       std::stod(value.substr(plus + 1)) / 86400.0,
                                                   pattern)
                                    : VbFormat(std::stod(value), pattern);
        EXPECT_EQ(got, text) << line;
    }
    EXPECT_GE(rows.size(), 30u);
}
