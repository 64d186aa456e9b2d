// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/common/arguments.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace {
using Args = std::vector<std::string>;

ParsedArguments Parsed(const Args& args) { return ParseArguments(args, 2026, 11); }

ForecastRequest Parse(const Args& args)
{
    const auto r = Parsed(args);
    if (const auto* e = std::get_if<UsageError>(&r))
        ADD_FAILURE() << e->Message;
    return std::get_if<ForecastRequest>(&r) ? std::get<ForecastRequest>(r) : ForecastRequest{};
}

std::string Error(const Args& args)
{
    const auto r = Parsed(args);
    return std::get_if<UsageError>(&r) ? std::get<UsageError>(r).Message : "";
}

// A place by coordinates with the given longitude, latitude and zone.
Args At(const std::string& lon, const std::string& lat, const std::string& zone)
{
    return {"days", "--from", "2024-01-01", "--lon", lon, "--lat", lat, "--zone", zone};
}

Args Named(const std::string& name)
{
    Args a = At("92W", "31N", "6");
    a.insert(a.end(), {"--name", name});
    return a;
}
} // namespace

TEST(ForecastArguments, DaysWithCoordinatesHourAndFormat)
{
    const ForecastRequest r =
        Parse({"days", "--from", "2024-02-29", "--days", "7", "--lon", "92.42W", "--lat", "31.25S",
               "--zone", "-10", "--name", "Camp", "--dst", "--hour", "06:30", "--format", "ics"});
    EXPECT_EQ(r.What, Command::Days);
    EXPECT_EQ(std::tie(r.Year, r.Month, r.Day, r.Days), std::make_tuple(2024, 2, 29, 7));
    ASSERT_TRUE(r.AtCoordinates);
    EXPECT_DOUBLE_EQ(r.AtCoordinates->Longitude, 92.42);
    EXPECT_DOUBLE_EQ(r.AtCoordinates->Latitude, -31.25);
    EXPECT_EQ(r.AtCoordinates->TimeZone, -10);
    EXPECT_EQ(r.AtCoordinates->Name, "Camp");
    EXPECT_TRUE(r.Dst);
    EXPECT_EQ(r.HourMinutes, 390);
    EXPECT_EQ(r.Format, OutputFormat::Ics);
}

// --tz stands beside --zone or in its place; the month list and the printed pages take --pdf.
TEST(ForecastArguments, ZonesDefaultsAndPrintedPages)
{
    const ForecastRequest tz = Parse({"events", "--year", "2025", "--lon", "85.32E", "--lat",
                                      "27.72N", "--tz", "Asia/Kathmandu"});
    ASSERT_TRUE(tz.AtCoordinates);
    EXPECT_EQ(tz.AtCoordinates->TzName, "Asia/Kathmandu");
    EXPECT_EQ(tz.AtCoordinates->TimeZone, 0); // taken from the zone by the program
    EXPECT_EQ(Parse({"month", "--lon", "52.71W", "--lat", "47.56N", "--zone", "4", "--tz",
                     "America/St_Johns"})
                  .AtCoordinates->TimeZone,
              4);
    const ForecastRequest month = Parse({"month", "--pdf", "list.pdf"});
    EXPECT_EQ(std::tie(month.Year, month.Month, month.Pdf),
              std::make_tuple(2026, 11, std::string("list.pdf")));
    EXPECT_FALSE(month.StoredLocation);
    const ForecastRequest page = Parse(
        {"calendar", "--year", "2024", "--month", "2", "--location", "3", "--pdf", "feb.pdf"});
    EXPECT_EQ(page.What, Command::CalendarPage);
    EXPECT_EQ(std::tie(page.Year, page.Month, page.Pdf, page.StoredLocation),
              std::make_tuple(2024, 2, std::string("feb.pdf"), std::optional(3)));
    EXPECT_EQ(Parse({"events", "--year", "1900", "--format", "json"}).Format, OutputFormat::Json);
    EXPECT_TRUE(std::holds_alternative<HelpRequested>(Parsed({"--help"})));
    EXPECT_TRUE(std::holds_alternative<VersionRequested>(Parsed({"--version"})));
}

// Both ends of every range the command line checks, one step inside and one outside:
// whole-hour zones -14 to 12, the years 1900 to 2500 (the days must end by 2500-12-31),
// months 1 to 12, 1 to 36525 days, stored locations 1 to 10, the clock 00:00 to 23:59,
// longitudes to 180 and latitudes to 90 degrees.
TEST(ForecastArguments, EveryRangeTakesBothEndsAndNothingBeyond)
{
    std::ifstream table(QUILLMERE_ARGUMENT_RANGES);
    ASSERT_TRUE(table) << QUILLMERE_ARGUMENT_RANGES;
    int rows = 0;
    for (std::string line; std::getline(table, line);) {
        std::istringstream words(line);
        std::string taken;
        words >> taken;
        if (taken.empty() || taken[0] == '#')
            continue;
        Args given;
        for (std::string word; words >> word;)
            given.push_back(word);
        EXPECT_EQ(Error(given).empty(), taken == "yes") << line << ": " << Error(given);
        ++rows;
    }
    EXPECT_GT(rows, 55);
    EXPECT_EQ(Parse(At("92W", "31N", "-14")).AtCoordinates->TimeZone, -14);
    EXPECT_NE(Error({"days", "--from", "1899-12-31"}).find("1900..2500"), std::string::npos);
    EXPECT_NE(Error({"days", "--from", "2500-12-25", "--days", "100"}).find("2500-12-31"),
              std::string::npos);
}

// Everything else that is refused, each in one line; not-a-number passes a range test
// unnoticed; names must be printable UTF-8 (one line of a text table, a JSON string and an
// iCalendar value alike).
TEST(ForecastArguments, BadInputIsRefusedWithOneClearLine)
{
    EXPECT_EQ(Error({"month", "--lon", "52.71W", "--lat", "47.56N"}),
              "a location by coordinates needs --lon, --lat and --zone or --tz");
    EXPECT_EQ(Error({"month", "--location", "2", "--tz", "Europe/Oslo"}),
              "give either --location or --lon/--lat/--zone, not both");
    EXPECT_NE(Error({"days", "--from", "2024-01-01", "--bogus"}).find("--bogus"),
              std::string::npos);
    for (const Args& refused : {Named("Camp\nEND:VCALENDAR"), Named(std::string(200, '\x80')),
                                Named("\xed\xa0\x80") /* a UTF-16 surrogate */, Named("")})
        EXPECT_NE(Error(refused), "") << refused.back();
    EXPECT_EQ(Error(Named("S\xc3\xa3o Jo\xc3\xa3o, \xe6\x9d\xb1\xe4\xba\xac \xf0\x9f\x8e\xa3")),
              "");
}
