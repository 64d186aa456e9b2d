// SPDX-License-Identifier: GPL-3.0-or-later
// Reading comma-separated text as spreadsheets and the log's export write it: fields in double
// quotes may hold commas, line breaks and doubled quotes; lines end in LF or CR LF.
#pragma once

#include <string>
#include <string_view>
#include <vector>

struct CsvRecord {
    int Line = 0; // the line the record starts on, from 1
    std::vector<std::string> Fields;
};

// Every record of the text; blank lines are skipped. A quote left open runs to the end.
std::vector<CsvRecord> ReadCsv(std::string_view text);

// The fields as one CSV line (RFC 4180: a field holding a comma, quote or line break is
// quoted, quotes doubled), ended by CR LF.
std::string CsvLine(const std::vector<std::string>& fields);
