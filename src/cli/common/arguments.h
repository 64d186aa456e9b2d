// SPDX-License-Identifier: GPL-3.0-or-later
// The command line of quillmere-forecast: three commands, a location either by its stored
// number or by coordinates, daylight saving, the chosen hour and the output format.
#pragma once

#include "text/timeunits.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

enum class Command { Days, Events, Month, CalendarPage, Glance };
enum class OutputFormat { Text, Csv, Json, Ics };

struct CoordinateLocation {
    double Longitude = 0.0; // degrees, west positive
    double Latitude = 0.0;  // degrees, north positive
    int TimeZone = 0;       // hours west of Greenwich
    std::string TzName;     // --tz: a zone of the tz database, whose clock the times follow
    std::string Name = "Custom location";
};

struct ForecastRequest {
    Command What = Command::Days;
    int Year = 0, Month = 0, Day = 0; // --from, or --year/--month
    int Days = 1;
    std::optional<int> StoredLocation;               // --location N
    std::optional<CoordinateLocation> AtCoordinates; // --lon/--lat/--zone
    bool Dst = false;
    int HourMinutes = NoonMinutes; // --hour, minutes since midnight
    OutputFormat Format = OutputFormat::Text;
    std::string Pdf; // --pdf FILE: the printed page instead of text
};

struct UsageError {
    std::string Message;
};

// The message as one line for the terminal: a control character typed into a name (a line
// break, a tab) is shown as its escape, "\x0a", so an error never spans two lines.
std::string OneLine(std::string_view message);

struct HelpRequested {};
struct VersionRequested {};

using ParsedArguments = std::variant<ForecastRequest, UsageError, HelpRequested, VersionRequested>;

// Parses the arguments after the program name. `todayYear`/`todayMonth` fill in a month
// command given without --year/--month.
ParsedArguments ParseArguments(const std::vector<std::string>& args, int todayYear, int todayMonth);

// "92.42W" -> 92.42, "31.25S" -> -31.25; nothing when malformed or out of range.
std::optional<double> ParseCoordinate(const std::string& text, char positive, char negative,
                                      double limit);

extern const char* const UsageText;
