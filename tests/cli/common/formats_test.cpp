// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/common/formats.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <map>

namespace {

DayRow Sample()
{
    DayRow r;
    r.Year = 2024;
    r.Month = 2;
    r.Day = 9;
    r.Sunrise = DayEvent::At(6.9);
    r.Sunset = DayEvent::At(17.85);
    r.Moonrise = {std::nullopt, EventStatus::None};
    r.MoonTransit = DayEvent::At(11.5);
    r.Moonset = DayEvent::At(17.25);
    r.Major1 = DayEvent::At(11.5);
    r.Major2 = DayEvent::At(23.9);
    r.Minor1 = DayEvent::At(5.25);
    r.Minor2 = {std::nullopt, EventStatus::None};
    r.Minor2Text = "*******";
    r.Rating = 4;
    r.Text = " Moon at Perigee , \"x\"";
    r.UtcOffsetHours = 6.0;
    r.Clock = {6.0, 6.0};
    return r;
}

// The sample day in each format holds the pieces the data file lists; iCalendar has one event
// for the rating, two for the majors and one for the minor.
TEST(ForecastFormats, EachFormatWritesTheSampleDay)
{
    const std::map<std::string, std::string> written = {
        {"json", AllDays(JsonDays(), {Sample()})},
        {"csv", AllDays(CsvDays(), {Sample()})},
        {"text", AllDays(TextDays("Alexandria, LA"), {Sample()})},
        {"ics", AllDays(IcsDays({"Alexandria", "1W-2N-z6"}, "20261123T000000Z"), {Sample()})}};
    std::ifstream table(QUILLMERE_FORMAT_PIECES);
    int rows = 0;
    for (std::string line; std::getline(table, line);) {
        if (line.empty() || line[0] == '#')
            continue;
        ++rows;
        const std::string& out = written.at(line.substr(0, line.find('|')));
        std::string piece = line.substr(line.find('|') + 1);
        for (std::size_t at; (at = piece.find("\\n")) != piece.npos;)
            piece.replace(at, 2, "\n");
        if (piece[0] == '^')
            EXPECT_EQ(out.rfind(piece.substr(1), 0), 0u) << line;
        else
            EXPECT_NE(out.find(piece), std::string::npos) << line << "\n" << out;
    }
    EXPECT_EQ(rows, 39 + 19); // the JSON keys and the other pieces
    std::size_t events = 0;
    for (std::size_t at = 0;
         (at = written.at("ics").find("BEGIN:VEVENT", at + 1)) != std::string::npos;)
        ++events;
    EXPECT_EQ(events, 4u);
    EXPECT_EQ(AllDays(JsonDays(), {}), "[]\n");
    EXPECT_EQ(ExactNumber(std::nan("")), "null"); // JSON has no NaN
}

} // namespace
