// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/common/arguments.h"

#include "astro/timebase.h"
#include "calendar/calendar.h"
#include "text/timeunits.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <map>
#include <string_view>

const char* const UsageText =
    R"(quillmere-forecast: Quillmere's fishing forecasts on the command line.

Usage:
  quillmere-forecast days --from YYYY-MM-DD [--days N] [LOCATION] [--dst] [--hour HH:MM]
                          [--format text|csv|json|ics]
  quillmere-forecast events --year YYYY [LOCATION] [--dst] [--format text|json]
  quillmere-forecast month [--year YYYY --month M] [LOCATION] [--dst] [--pdf FILE]
  quillmere-forecast calendar --year YYYY --month M [LOCATION] [--dst] --pdf FILE
  quillmere-forecast glance --year YYYY --month M [LOCATION] --pdf FILE
  quillmere-forecast --version | -V

Commands:
  days     one line (or record) per day from --from on, --days of them (default 1, at most
           36525): sunrise, sunset, twilights, moonrise, transit, moonset, the major and
           minor periods, illumination, rating and the day's events. An event that does
           not happen in that local day has no time ("*****" in text, empty in CSV, null in
           JSON) and a status: "above" or "below" (all day) or "none" (on another day).
  events   the year's moon phases, perigees and apogees, greatest declinations, equinoxes
           and solstices whose local date lies in the year, in time order ("jd" in JSON is
           universal time, "local" its local clock text).
  month    the month's daily times as the Monthly data list shows them (default: this month).
  calendar the month's printed calendar page: ratings, phases, majors and minors.
  glance   the month at a glance: the lunar events on one time line, printed.

Location (default: the default one of your ten stored locations):
  --location N              one of the ten stored locations, 1..10
  --lon 92.42W --lat 31.25N --zone 6 [--name TEXT]
                            degrees with a hemisphere letter (W/E, N/S); zone in hours
  --lon 92.42W --lat 31.25N --tz America/Chicago [--zone 6]
                            times on the zone's own clock, daylight saving on its dates
                            (a stored location with a zone uses it the same way)
                            west of Greenwich (5 = US Eastern, -1 = Central Europe)

Options:
  --dst            times in daylight-saving time (one hour later)
  --hour HH:MM     the moment of the day for illumination, waxing and sky positions
                   (default 12:00)
  --format F       text (default), csv, json, or ics (iCalendar: ratings as all-day events,
                   majors as 2-hour and minors as 70-minute events)
  --pdf FILE       write the printed page(s) as a PDF file instead of text
  --help           this text
  --version, -V    the program's version

Years run from 1900 to 2500. Bad input prints one line on stderr and exits with status 2.

Examples:
  quillmere-forecast days --from 2024-06-01 --days 7
  quillmere-forecast days --from 2024-06-01 --days 30 --location 3 --format ics > june.ics
  quillmere-forecast days --from 2024-01-01 --lon 0.12W --lat 51.5N --zone 0 --format json
  quillmere-forecast events --year 2024 --format json
  quillmere-forecast month --year 2024 --month 2 --dst
  quillmere-forecast calendar --year 2024 --month 2 --pdf february.pdf
)";
static_assert(FirstYear == 1900 && LastYear == 2500, "the usage text names the years");

namespace {

std::optional<int> ToInt(const std::string& text)
{
    int v = 0;
    const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), v);
    if (ec != std::errc{} || end != text.data() + text.size())
        return std::nullopt;
    return v;
}

// Well-formed UTF-8 (shortest forms, no surrogates) without control characters: a name must
// stand in a text table, a JSON string and an iCalendar value alike.
bool PrintableUtf8(const std::string& text)
{
    for (std::size_t i = 0; i < text.size();) {
        const auto b = static_cast<unsigned char>(text[i]);
        if (b < 0x80) {
            if (b < 0x20 || b == 0x7F)
                return false;
            ++i;
            continue;
        }
        const std::size_t n = b >= 0xF0 ? 4 : b >= 0xE0 ? 3 : b >= 0xC2 ? 2 : 0;
        if (n == 0 || b > 0xF4 || i + n > text.size())
            return false;
        char32_t cp = b & (0x7F >> n);
        for (std::size_t j = 1; j < n; ++j) {
            const auto c = static_cast<unsigned char>(text[i + j]);
            if ((c & 0xC0) != 0x80)
                return false;
            cp = (cp << 6) | (c & 0x3F);
        }
        const char32_t least = n == 2 ? 0x80 : n == 3 ? 0x800 : 0x10000;
        if (cp < least || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF) ||
            (cp >= 0x80 && cp < 0xA0))
            return false;
        i += n;
    }
    return true;
}

int DaysIn(int y, int m) { return Calendar::DaysInMonth(m) + (m == 2 && IsLeapYear(y) ? 1 : 0); }

// "YYYY-MM-DD" into the request; false when malformed.
bool ParseDate(const std::string& text, ForecastRequest& r)
{
    if (text.size() != 10 || text[4] != '-' || text[7] != '-')
        return false;
    const auto y = ToInt(text.substr(0, 4)), m = ToInt(text.substr(5, 2)),
               d = ToInt(text.substr(8, 2));
    if (!y || !m || !d || *m < 1 || *m > 12 || *d < 1 || *d > DaysIn(*y, *m))
        return false;
    r.Year = *y;
    r.Month = *m;
    r.Day = *d;
    return true;
}

std::optional<int> ParseHour(const std::string& text)
{
    if (text.size() != 5 || text[2] != ':')
        return std::nullopt;
    const auto h = ToInt(text.substr(0, 2)), m = ToInt(text.substr(3, 2));
    if (!h || !m || *h > 23 || *m > 59 || *h < 0 || *m < 0)
        return std::nullopt;
    return *h * MinutesPerHour + *m;
}

std::optional<OutputFormat> ParseFormat(const std::string& text)
{
    static const std::map<std::string, OutputFormat> names = {{"text", OutputFormat::Text},
                                                              {"csv", OutputFormat::Csv},
                                                              {"json", OutputFormat::Json},
                                                              {"ics", OutputFormat::Ics}};
    const auto it = names.find(text);
    return it == names.end() ? std::nullopt : std::optional(it->second);
}

constexpr unsigned char FirstPrintable = 0x20, Delete = 0x7f;

using Options = std::map<std::string, std::string>;

// Collects "--name value" pairs and the flags; an unknown option is an error.
std::variant<Options, UsageError> Collect(const std::vector<std::string>& args)
{
    static const std::map<std::string, bool> known = {
        {"--from", true},     {"--days", true},  {"--year", true},   {"--month", true},
        {"--location", true}, {"--lon", true},   {"--lat", true},    {"--zone", true},
        {"--tz", true},       {"--name", true},  {"--format", true}, {"--hour", true},
        {"--dst", false},     {"--help", false}, {"--pdf", true}};
    Options options;
    for (std::size_t i = 1; i < args.size(); ++i) {
        const auto it = known.find(args[i]);
        if (it == known.end())
            return UsageError{"unknown option '" + args[i] + "' (see --help)"};
        if (options.count(args[i]))
            return UsageError{"option " + args[i] + " given twice"};
        if (!it->second) {
            options[args[i]] = "";
        } else if (i + 1 >= args.size()) {
            return UsageError{"option " + args[i] + " needs a value"};
        } else {
            options[args[i]] = args[i + 1];
            ++i;
        }
    }
    return options;
}

std::optional<UsageError> ReadLocation(const Options& o, ForecastRequest& r)
{
    if (o.count("--location")) {
        const auto n = ToInt(o.at("--location"));
        if (!n || *n < 1 || *n > 10)
            return UsageError{"--location takes a stored location number from 1 to 10"};
        r.StoredLocation = *n;
    }
    const bool any = o.count("--lon") || o.count("--lat") || o.count("--zone") || o.count("--tz") ||
                     o.count("--name");
    if (!any)
        return std::nullopt;
    if (r.StoredLocation)
        return UsageError{"give either --location or --lon/--lat/--zone, not both"};
    if (!o.count("--lon") || !o.count("--lat") || !(o.count("--zone") || o.count("--tz")))
        return UsageError{"a location by coordinates needs --lon, --lat and --zone or --tz"};
    CoordinateLocation c;
    const auto lon = ParseCoordinate(o.at("--lon"), 'W', 'E', 180.0);
    const auto lat = ParseCoordinate(o.at("--lat"), 'N', 'S', 90.0);
    const auto zone = o.count("--zone") ? ToInt(o.at("--zone")) : std::optional<int>(0);
    if (!lon)
        return UsageError{"malformed longitude '" + o.at("--lon") + "' (example: 92.42W)"};
    if (!lat)
        return UsageError{"malformed latitude '" + o.at("--lat") + "' (example: 31.25N)"};
    if (!zone || *zone < -14 || *zone > 12)
        return UsageError{"--zone takes whole hours west of Greenwich, -14 to 12"};
    if (o.count("--name") && (o.at("--name").empty() || !PrintableUtf8(o.at("--name"))))
        return UsageError{"--name takes printable UTF-8 text without line breaks"};
    c.Longitude = *lon;
    c.Latitude = *lat;
    c.TimeZone = *zone;
    if (o.count("--tz"))
        c.TzName = o.at("--tz");
    if (o.count("--name"))
        c.Name = o.at("--name");
    r.AtCoordinates = c;
    return std::nullopt;
}

std::optional<UsageError> ReadCommand(const Options& o, ForecastRequest& r, int todayYear,
                                      int todayMonth)
{
    // Location options and --dst go with every command; the rest only with their own.
    const auto allowed =
        [&o](std::initializer_list<std::string_view> own) -> std::optional<UsageError> {
        static constexpr std::array<std::string_view, 7> everywhere = {
            "--location", "--lon", "--lat", "--zone", "--tz", "--name", "--dst"};
        for (const auto& entry : o) {
            const std::string_view name = entry.first;
            if (std::find(own.begin(), own.end(), name) == own.end() &&
                std::find(everywhere.begin(), everywhere.end(), name) == everywhere.end())
                return UsageError{"option " + entry.first + " does not apply here (see --help)"};
        }
        return std::nullopt;
    };
    switch (r.What) {
    case Command::Days: {
        if (auto e = allowed({"--from", "--days", "--format", "--hour"}))
            return e;
        if (!o.count("--from") || !ParseDate(o.at("--from"), r))
            return UsageError{"days needs --from YYYY-MM-DD with a real date"};
        if (o.count("--days")) {
            const auto n = ToInt(o.at("--days"));
            if (!n || *n < 1 || *n > 36525)
                return UsageError{"--days takes a whole number from 1 to 36525"};
            r.Days = *n;
        }
        if (CivilToJd(r.Year, r.Month, r.Day) + r.Days - 1 > CivilToJd(LastYear, 12, 31))
            return UsageError{"the days run past " + std::to_string(LastYear) +
                              "-12-31, the last day the program covers"};
        break;
    }
    case Command::Events:
        if (auto e = allowed({"--year", "--format"}))
            return e;
        if (!o.count("--year"))
            return UsageError{"events needs --year YYYY"};
        if (const auto y = ToInt(o.at("--year")))
            r.Year = *y;
        else
            return UsageError{"malformed year '" + o.at("--year") + "'"};
        break;
    case Command::Month:
    case Command::CalendarPage:
    case Command::Glance: {
        if (auto e = allowed({"--year", "--month", "--pdf"}))
            return e;
        r.Year = todayYear;
        r.Month = todayMonth;
        const bool printed = r.What != Command::Month;
        if (printed && (!o.count("--year") || !o.count("--pdf")))
            return UsageError{"calendar and glance need --year, --month and --pdf FILE"};
        if (o.count("--year") != o.count("--month"))
            return UsageError{"month takes --year and --month together, or neither"};
        if (o.count("--year")) {
            const auto y = ToInt(o.at("--year")), m = ToInt(o.at("--month"));
            if (!y || !m || *m < 1 || *m > 12)
                return UsageError{"month needs --year YYYY and --month 1..12"};
            r.Year = *y;
            r.Month = *m;
        }
        if (o.count("--pdf"))
            r.Pdf = o.at("--pdf");
        break;
    }
    }
    return std::nullopt;
}

} // namespace

std::optional<double> ParseCoordinate(const std::string& text, char positive, char negative,
                                      double limit)
{
    if (text.size() < 2)
        return std::nullopt;
    const char h = char(std::toupper(static_cast<unsigned char>(text.back())));
    if (h != positive && h != negative)
        return std::nullopt;
    const std::string number = text.substr(0, text.size() - 1);
    double v = 0.0;
    const auto [end, ec] = std::from_chars(number.data(), number.data() + number.size(), v);
    if (ec != std::errc{} || end != number.data() + number.size() || !std::isfinite(v) || v < 0 ||
        v > limit)
        return std::nullopt;
    return h == positive ? v : -v;
}

ParsedArguments ParseArguments(const std::vector<std::string>& args, int todayYear, int todayMonth)
{
    if (args.empty())
        return UsageError{"no command given: days, events, month, calendar or glance (see --help)"};
    if (args[0] == "--help" || args[0] == "-h" || args[0] == "help")
        return HelpRequested{};
    if (args.size() == 1 && (args[0] == "--version" || args[0] == "-V"))
        return VersionRequested{};
    ForecastRequest r;
    static const std::map<std::string, Command> commands = {{"days", Command::Days},
                                                            {"events", Command::Events},
                                                            {"month", Command::Month},
                                                            {"calendar", Command::CalendarPage},
                                                            {"glance", Command::Glance}};
    const auto c = commands.find(args[0]);
    if (c == commands.end())
        return UsageError{"unknown command '" + args[0] +
                          "': use days, events, month, calendar or glance"};
    r.What = c->second;

    auto collected = Collect(args);
    if (auto* e = std::get_if<UsageError>(&collected))
        return *e;
    const Options& o = std::get<Options>(collected);
    if (o.count("--help"))
        return HelpRequested{};
    if (auto e = ReadCommand(o, r, todayYear, todayMonth))
        return *e;
    if (!ValidYear(r.Year))
        return UsageError{"year " + std::to_string(r.Year) + " is outside " +
                          std::to_string(FirstYear) + ".." + std::to_string(LastYear)};
    if (auto e = ReadLocation(o, r))
        return *e;
    r.Dst = o.count("--dst") > 0;
    if (o.count("--hour")) {
        const auto h = ParseHour(o.at("--hour"));
        if (!h)
            return UsageError{"--hour takes HH:MM, 00:00 to 23:59"};
        r.HourMinutes = *h;
    }
    if (o.count("--format")) {
        const auto f = ParseFormat(o.at("--format"));
        const bool eventsFormat = f == OutputFormat::Text || f == OutputFormat::Json;
        if (!f || (r.What == Command::Events && !eventsFormat))
            return UsageError{"unknown format '" + o.at("--format") + "' for this command"};
        r.Format = *f;
    }
    return r;
}

std::string OneLine(std::string_view message)
{
    static constexpr std::string_view Hex = "0123456789abcdef";
    std::string line;
    for (const char c : message) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < FirstPrintable || byte == Delete)
            line += std::string{'\\', 'x', Hex[byte >> 4], Hex[byte & 0xf]};
        else
            line += c;
    }
    return line;
}
