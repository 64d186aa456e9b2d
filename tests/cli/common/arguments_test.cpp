// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/common/arguments.h"
#include "support/textrows.h"

#include <gtest/gtest.h>

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

Args Named(const std::string& name)
{
    return {"days", "--from", "2024-01-01", "--lon",  "92W", "--lat",
            "31N",  "--zone", "6",          "--name", name};
}
} // namespace

// What each option sets; --tz stands in the place of --zone (the zone then comes from it); the
// month list takes --pdf; the month defaults to today's.
TEST(ForecastArguments, OptionsFillTheRequest)
{
    const ForecastRequest r =
        Parse({"days", "--from", "2024-02-29", "--days", "7", "--lon", "92.42W", "--lat", "31.25S",
               "--zone", "-10", "--name", "Camp", "--dst", "--hour", "06:30", "--format", "ics"});
    EXPECT_EQ(r.What, Command::Days);
    EXPECT_EQ(std::tie(r.Year, r.Month, r.Day, r.Days, r.Dst, r.HourMinutes, r.Format),
              std::make_tuple(2024, 2, 29, 7, true, 390, OutputFormat::Ics));
    ASSERT_TRUE(r.AtCoordinates);
    EXPECT_EQ(std::tie(r.AtCoordinates->Longitude, r.AtCoordinates->Latitude,
                       r.AtCoordinates->TimeZone, r.AtCoordinates->Name),
              std::make_tuple(92.42, -31.25, -10, std::string("Camp")));
    const ForecastRequest tz = Parse({"events", "--year", "2025", "--lon", "85.32E", "--lat",
                                      "27.72N", "--tz", "Asia/Kathmandu"});
    EXPECT_EQ(tz.AtCoordinates->TzName, "Asia/Kathmandu");
    EXPECT_EQ(tz.AtCoordinates->TimeZone, 0);
    const ForecastRequest month = Parse({"month", "--pdf", "list.pdf"});
    EXPECT_EQ(std::tie(month.Year, month.Month, month.Pdf, month.StoredLocation),
              std::make_tuple(2026, 11, std::string("list.pdf"), std::optional<int>()));
}

// Both ends of every range the command line checks and one step beyond, from a data file;
// the refusals' own words; names must be printable UTF-8 (one line of a text table, a JSON
// string and an iCalendar value alike).
TEST(ForecastArguments, EveryRangeTakesBothEndsAndNothingBeyond)
{
    const auto rows = textrows::Read(QUILLMERE_ARGUMENT_RANGES, ' ');
    for (const auto& [line, words] : rows) {
        const Args given(words.begin() + 1, words.end());
        EXPECT_EQ(Error(given).empty(), words[0] == "yes") << line << ": " << Error(given);
    }
    EXPECT_GT(rows.size(), 55u);
    EXPECT_NE(Error({"days", "--from", "1899-12-31"}).find("1900..2500"), std::string::npos);
    EXPECT_NE(Error({"days", "--from", "2500-12-25", "--days", "100"}).find("2500-12-31"),
              std::string::npos);
    EXPECT_EQ(Error({"month", "--lon", "52.71W", "--lat", "47.56N"}),
              "a location by coordinates needs --lon, --lat and --zone or --tz");
    EXPECT_EQ(Error({"month", "--location", "2", "--tz", "Europe/Oslo"}),
              "give either --location or --lon/--lat/--zone, not both");
    for (const Args& refused : {Named("Camp\nEND:VCALENDAR"), Named(std::string(200, '\x80')),
                                Named("\xed\xa0\x80") /* a UTF-16 surrogate */, Named("")})
        EXPECT_NE(Error(refused), "") << refused.back();
    EXPECT_EQ(Error(Named("S\xc3\xa3o Jo\xc3\xa3o, \xe6\x9d\xb1\xe4\xba\xac \xf0\x9f\x8e\xa3")),
              "");
}
