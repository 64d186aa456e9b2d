// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/common/arguments.h"

#include <gtest/gtest.h>

namespace {
ForecastRequest Parse(std::vector<std::string> args)
{
    auto r = ParseArguments(args, 2026, 11);
    if (auto* e = std::get_if<UsageError>(&r))
        ADD_FAILURE() << e->Message;
    return std::get_if<ForecastRequest>(&r) ? std::get<ForecastRequest>(r) : ForecastRequest{};
}

std::string Error(std::vector<std::string> args)
{
    auto r = ParseArguments(args, 2026, 11);
    return std::get_if<UsageError>(&r) ? std::get<UsageError>(r).Message : "";
}
} // namespace

TEST(ForecastArguments, DaysWithCoordinatesHourAndFormat)
{
    const ForecastRequest r =
        Parse({"days", "--from", "2024-02-29", "--days", "7", "--lon", "92.42W", "--lat", "31.25S",
               "--zone", "-10", "--name", "Camp", "--dst", "--hour", "06:30", "--format", "ics"});
    EXPECT_EQ(r.What, Command::Days);
    EXPECT_EQ(r.Year, 2024);
    EXPECT_EQ(r.Month, 2);
    EXPECT_EQ(r.Day, 29);
    EXPECT_EQ(r.Days, 7);
    ASSERT_TRUE(r.AtCoordinates);
    EXPECT_DOUBLE_EQ(r.AtCoordinates->Longitude, 92.42);
    EXPECT_DOUBLE_EQ(r.AtCoordinates->Latitude, -31.25);
    EXPECT_EQ(r.AtCoordinates->TimeZone, -10);
    EXPECT_EQ(r.AtCoordinates->Name, "Camp");
    EXPECT_TRUE(r.Dst);
    EXPECT_EQ(r.HourMinutes, 390);
    EXPECT_EQ(r.Format, OutputFormat::Ics);
}

// --tz stands beside --zone or in its place; it goes with coordinates, not a stored location.
TEST(ForecastArguments, TzZoneWithOrWithoutWholeHours)
{
    const ForecastRequest r = Parse({"events", "--year", "2025", "--lon", "85.32E", "--lat",
                                     "27.72N", "--tz", "Asia/Kathmandu"});
    ASSERT_TRUE(r.AtCoordinates);
    EXPECT_EQ(r.AtCoordinates->TzName, "Asia/Kathmandu");
    EXPECT_EQ(r.AtCoordinates->TimeZone, 0); // taken from the zone by the program
    EXPECT_EQ(Parse({"month", "--lon", "52.71W", "--lat", "47.56N", "--zone", "4", "--tz",
                     "America/St_Johns"})
                  .AtCoordinates->TimeZone,
              4);
    EXPECT_EQ(Error({"month", "--lon", "52.71W", "--lat", "47.56N"}),
              "a location by coordinates needs --lon, --lat and --zone or --tz");
    EXPECT_EQ(Error({"month", "--location", "2", "--tz", "Europe/Oslo"}),
              "give either --location or --lon/--lat/--zone, not both");
}

TEST(ForecastArguments, MonthDefaultsToThisMonthAndStoredLocation)
{
    const ForecastRequest r = Parse({"month"});
    EXPECT_EQ(r.Year, 2026);
    EXPECT_EQ(r.Month, 11);
    EXPECT_FALSE(r.StoredLocation);
    EXPECT_EQ(
        Parse({"month", "--year", "2500", "--month", "12", "--location", "10"}).StoredLocation, 10);
    EXPECT_EQ(Parse({"events", "--year", "1900", "--format", "json"}).Format, OutputFormat::Json);
}

TEST(ForecastArguments, BadInputIsRefusedWithOneClearLine)
{
    EXPECT_NE(Error({"days", "--from", "2023-02-29"}), "");
    EXPECT_NE(Error({"days", "--from", "2024-1-01"}), "");
    EXPECT_NE(Error({"days", "--from", "1899-12-31"}).find("1900..2500"), std::string::npos);
    EXPECT_NE(Error({"events", "--year", "2501"}).find("1900..2500"), std::string::npos);
    EXPECT_NE(Error({"days", "--from", "2024-01-01", "--location", "11"}), "");
    EXPECT_NE(Error({"days", "--from", "2024-01-01", "--location", "0"}), "");
    EXPECT_NE(
        Error({"days", "--from", "2024-01-01", "--lon", "92.42X", "--lat", "31N", "--zone", "6"}),
        "");
    EXPECT_NE(
        Error({"days", "--from", "2024-01-01", "--lon", "192W", "--lat", "31N", "--zone", "6"}),
        "");
    EXPECT_NE(Error({"days", "--from", "2024-01-01", "--lon", "92W", "--lat", "31N"}), "");
    EXPECT_NE(Error({"days", "--from", "2024-01-01", "--bogus"}).find("--bogus"),
              std::string::npos);
    EXPECT_NE(Error({"events", "--year", "2024", "--format", "csv"}), "");
    EXPECT_NE(Error({"events", "--year", "2024", "--days", "3"}), "");
    EXPECT_NE(Error({"month", "--year", "2024"}), "");
    EXPECT_NE(Error({"days", "--from", "2024-01-01", "--hour", "24:00"}), "");
    EXPECT_NE(Error({"fly"}), "");
    EXPECT_NE(Error({}), "");
    EXPECT_TRUE(std::holds_alternative<HelpRequested>(ParseArguments({"--help"}, 2026, 1)));
}

// Not-a-number passes a range test unnoticed; names must be printable UTF-8; the days must end
// by 2500; --version stands alone.
TEST(ForecastArguments, NanNamesAndTheLastDayAreChecked)
{
    const auto place = [](const std::string& lon, const std::string& lat, const std::string& name) {
        return Error({"days", "--from", "2024-01-01", "--lon", lon, "--lat", lat, "--zone", "6",
                      "--name", name});
    };
    EXPECT_NE(place("nanW", "31N", "Camp"), "");
    EXPECT_NE(place("92W", "nanN", "Camp"), "");
    EXPECT_NE(place("infW", "31N", "Camp"), "");
    EXPECT_NE(place("92W", "31N", "Camp\nEND:VCALENDAR"), "");
    EXPECT_NE(place("92W", "31N", std::string(200, '\x80')), "");
    EXPECT_NE(place("92W", "31N", "\xed\xa0\x80"), ""); // a UTF-16 surrogate
    EXPECT_NE(place("92W", "31N", ""), "");
    EXPECT_EQ(
        place("92W", "31N", "S\xc3\xa3o Jo\xc3\xa3o, \xe6\x9d\xb1\xe4\xba\xac \xf0\x9f\x8e\xa3"),
        "");
    EXPECT_NE(Error({"days", "--from", "2500-12-25", "--days", "100"}).find("2500-12-31"),
              std::string::npos);
    EXPECT_EQ(Parse({"days", "--from", "2500-12-25", "--days", "7"}).Days, 7);
    EXPECT_TRUE(std::holds_alternative<VersionRequested>(ParseArguments({"--version"}, 2026, 1)));
    EXPECT_NE(Error({"days", "--version"}), "");
}
