// SPDX-License-Identifier: GPL-3.0-or-later
// Reference data files for the test programs that link no Qt: a row per line, blank lines and
// lines starting with "#" left out.
#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace textrows {

struct Row {
    std::string Line;
    std::vector<std::string> Fields;
};

// Each line's fields split at `separator` and kept as written (an empty one too), or at runs of
// blanks when the separator is ' '. A test failure when the file cannot be read.
inline std::vector<Row> Read(const std::string& path, char separator)
{
    std::ifstream file(path);
    EXPECT_TRUE(file) << path;
    std::vector<Row> rows;
    for (std::string line; std::getline(file, line);) {
        if (line.find_first_not_of(" \t") == std::string::npos || line.starts_with('#'))
            continue;
        Row row{line, {}};
        std::istringstream in(line);
        if (separator == ' ')
            for (std::string field; in >> field;)
                row.Fields.push_back(field);
        else // an empty last field counts too
            for (std::size_t start = 0, end = 0; end != std::string::npos; start = end + 1) {
                end = line.find(separator, start);
                row.Fields.push_back(line.substr(start, end - start));
            }
        rows.push_back(std::move(row));
    }
    return rows;
}

} // namespace textrows
