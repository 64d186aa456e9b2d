// SPDX-License-Identifier: GPL-3.0-or-later
// The lines of the log's printed report: one fixed-width line per record, the page's title,
// column heading and dash line, and the split of the report text into printed pages.
// Plain C++; the report window and the command line both print these.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The columns of one record that its report line shows; nothing where the column is null.
struct ReportRecord {
    std::optional<double> JulianDate; // date serial
    std::optional<double> Major1;     // fraction of a day
    std::optional<double> Major2;
    std::optional<double> Minor1; // decimal hours, -1 when there is none
    std::optional<double> Minor2;
    std::optional<double> GraphicType;
    std::optional<double> IllumPercent;
    std::optional<double> MoonAge;
};

// Item number item (from 1) and the record's pieces, each followed by its blanks, ending in
// a carriage return and line feed. Minors are clock texts with or without AM/PM.
std::string ReportLine(int item, const ReportRecord& record, bool ampm);

inline constexpr std::string_view ReportLineEnd = "\r\n";

// One catch of a day as the report shows it under the day's line, in the stored units.
struct ReportCatch {
    std::string Time; // "HH:MM:SS"; empty when not known
    std::string Species;
    int Count = 1;
    std::optional<int> LengthMm;
    std::optional<int> WeightG;
    bool Released = false;
    std::string Bait;
};

// "      06:15  Pike x2  81.2 cm  4.35 kg  released  Spinnerbait" and the line end; a blank
// time of ten blanks' width, nothing for what is not known.
std::string CatchReportLine(const ReportCatch& c);
inline constexpr std::string_view ReportHeading =
    "#     Date         Ma1        Ma2       Mi1       Mi2         G     %    Age   ";

// "Quillmere DataBase Report - Page # 2".
std::string ReportTitleLine(int page);
// 76 dashes: under the heading of each page, and appended to the text before printing.
std::string ReportDashLine();

// The printed pages of a report text: each page starts with its title, the heading and the
// dash line; every line of the text that ends in a line end follows, and a new page starts
// as soon as a page's count, which starts at 3 for those three lines, passes 60.
std::vector<std::vector<std::string>> ReportPages(std::string_view text);

// The pages as plain text: their lines ended by line feeds, a form feed between pages.
std::string PagesAsText(const std::vector<std::vector<std::string>>& pages);
