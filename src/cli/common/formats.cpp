// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/common/formats.h"

#include "astro/timebase.h"
#include "text/timeunits.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <functional>

namespace {

std::string Date(int y, int m, int d)
{
    char buf[16];
    std::snprintf(buf, sizeof buf, "%04d-%02d-%02d", y, m, d);
    return buf;
}

std::string JsonString(const std::string& s)
{
    std::string out = "\"";
    for (const char c : s) {
        if (c == '"' || c == '\\') {
            out += '\\';
            out += c;
        } else if (static_cast<unsigned char>(c) < 0x20) {
            char buf[8];
            std::snprintf(buf, sizeof buf, "\\u%04x", c);
            out += buf;
        } else {
            out += c;
        }
    }
    return out + "\"";
}

std::string Optional(const std::optional<double>& v) { return v ? ExactNumber(*v) : "null"; }

const char* StatusName(EventStatus s)
{
    switch (s) {
    case EventStatus::Happens:
        return "ok";
    case EventStatus::Above:
        return "above";
    case EventStatus::Below:
        return "below";
    case EventStatus::None:
        break;
    }
    return "none";
}

// The columns of CSV and JSON, in one place: key and the value's JSON text.
using Field = std::pair<std::string, std::function<std::string(const DayRow&)>>;

// An event's time (null unless it happens in the day) and, beside it, its status.
void AddEvent(std::vector<Field>& fields, const std::string& key, DayEvent DayRow::*event)
{
    fields.emplace_back(key, [event](const DayRow& r) { return Optional((r.*event).Hours); });
    fields.emplace_back(key + "_status", [event](const DayRow& r) {
        return "\"" + std::string(StatusName((r.*event).Status)) + "\"";
    });
}

std::vector<Field> MakeFields()
{
    std::vector<Field> f = {
        {"date", [](const DayRow& r) { return JsonString(Date(r.Year, r.Month, r.Day)); }}};
    const std::pair<const char*, DayEvent DayRow::*> sunEvents[] = {
        {"sunrise", &DayRow::Sunrise},
        {"sunset", &DayRow::Sunset},
        {"sun_transit", &DayRow::SunTransit},
        {"civil_dawn", &DayRow::CivilDawn},
        {"civil_dusk", &DayRow::CivilDusk},
        {"nautical_dawn", &DayRow::NauticalDawn},
        {"nautical_dusk", &DayRow::NauticalDusk},
        {"astronomical_dawn", &DayRow::AstronomicalDawn},
        {"astronomical_dusk", &DayRow::AstronomicalDusk}};
    for (const auto& [key, event] : sunEvents)
        AddEvent(f, key, event);
    f.emplace_back("day_length", [](const DayRow& r) { return Optional(r.DayLength); });
    const std::pair<const char*, DayEvent DayRow::*> moonEvents[] = {
        {"moonrise", &DayRow::Moonrise}, {"moon_transit", &DayRow::MoonTransit},
        {"moonset", &DayRow::Moonset},   {"major1", &DayRow::Major1},
        {"major2", &DayRow::Major2},     {"minor1", &DayRow::Minor1},
        {"minor2", &DayRow::Minor2}};
    for (const auto& [key, event] : moonEvents)
        AddEvent(f, key, event);
    const std::vector<Field> rest = {
        {"major1_text", [](const DayRow& r) { return JsonString(r.Major1Text); }},
        {"major2_text", [](const DayRow& r) { return JsonString(r.Major2Text); }},
        {"minor1_text", [](const DayRow& r) { return JsonString(r.Minor1Text); }},
        {"minor2_text", [](const DayRow& r) { return JsonString(r.Minor2Text); }},
        {"sunrise_text", [](const DayRow& r) { return JsonString(r.SunriseText); }},
        {"sunset_text", [](const DayRow& r) { return JsonString(r.SunsetText); }},
        {"illum_percent", [](const DayRow& r) { return std::to_string(r.IllumPercent); }},
        {"waxing", [](const DayRow& r) { return std::to_string(r.Waxing); }},
        {"rating", [](const DayRow& r) { return std::to_string(r.Rating); }},
        {"moon_age", [](const DayRow& r) { return std::to_string(r.MoonAge); }},
        {"phase", [](const DayRow& r) { return std::to_string(r.Phase); }},
        {"perigee", [](const DayRow& r) { return std::to_string(r.Perigee); }},
        {"declination", [](const DayRow& r) { return std::to_string(r.Declination); }},
        {"season", [](const DayRow& r) { return std::to_string(r.Season); }},
        {"holiday", [](const DayRow& r) { return std::string(r.Holiday ? "true" : "false"); }},
        {"text", [](const DayRow& r) { return JsonString(r.Text); }},
        {"sun_azimuth", [](const DayRow& r) { return ExactNumber(r.SunAzimuth); }},
        {"sun_altitude", [](const DayRow& r) { return ExactNumber(r.SunAltitude); }},
        {"moon_azimuth", [](const DayRow& r) { return ExactNumber(r.MoonAzimuth); }},
        {"moon_altitude", [](const DayRow& r) { return ExactNumber(r.MoonAltitude); }},
        {"moon_parallactic_angle",
         [](const DayRow& r) { return ExactNumber(r.MoonParallacticAngle); }},
        // The clock's offset that day (at noon), minutes east of Greenwich: -300 for New York
        // in winter, 330 for India.
        {"utc_offset_minutes",
         [](const DayRow& r) { return std::to_string(-std::lround(r.UtcOffsetHours * 60.0)); }},
    };
    f.insert(f.end(), rest.begin(), rest.end());
    // Last, so that the columns before keep their places for scripts.
    AddEvent(f, "moonrise2", &DayRow::Moonrise2);
    AddEvent(f, "moonset2", &DayRow::Moonset2);
    return f;
}

const std::vector<Field>& Fields()
{
    static const std::vector<Field> fields = MakeFields();
    return fields;
}

// The text of a JSON string (the forms JsonString writes).
std::string Unescaped(const std::string& json)
{
    std::string plain;
    for (std::size_t i = 1; i + 1 < json.size(); ++i) {
        if (json[i] == '\\' && json[i + 1] == 'u') {
            plain += char(std::stoi(json.substr(i + 2, 4), nullptr, 16));
            i += 5;
        } else {
            plain += json[i] == '\\' ? json[++i] : json[i];
        }
    }
    return plain;
}

// CSV cells: JSON text without the quotes of plain strings; strings holding a comma, quote or
// line break are quoted with doubled quotes; null is an empty cell.
std::string CsvCell(const std::string& json)
{
    if (json == "null")
        return "";
    if (json.empty() || json.front() != '"')
        return json;
    std::string plain = Unescaped(json);
    std::string quoted = "\"";
    if (plain.find_first_of(",\"\r\n") == std::string::npos)
        return plain;
    for (const char c : plain)
        quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
    return quoted + "\"";
}

std::string Trimmed(std::string s)
{
    while (!s.empty() && s.front() == ' ')
        s.erase(0, 1);
    while (!s.empty() && s.back() == ' ')
        s.pop_back();
    return s;
}

// "HH:MM", or the program's "*****" for an event that does not happen in the day.
std::string Clock24(const DayEvent& e)
{
    if (!e.Hours)
        return "*****";
    const int minutes = static_cast<int>(std::floor(*e.Hours * 60.0));
    char buf[8];
    std::snprintf(buf, sizeof buf, "%02d:%02d", minutes / 60 % 24, minutes % 60);
    return buf;
}

// The text table's note of a second moonrise or moonset in the day, before the day's events.
std::string SecondMoonEvents(const DayRow& r)
{
    std::string notes;
    for (const auto& [name, event] :
         {std::pair{"2nd moonrise ", &r.Moonrise2}, std::pair{"2nd moonset ", &r.Moonset2}})
        if (event->Hours)
            notes += name + Clock24(*event) + "  ";
    return notes;
}

} // namespace

std::string ExactNumber(double v)
{
    if (!std::isfinite(v))
        return "null";
    std::array<char, 32> buf{};
    const auto [end, ec] = std::to_chars(buf.data(), buf.data() + buf.size(), v);
    return ec == std::errc{} ? std::string(buf.data(), end) : "null";
}

std::string RatingName(int rating)
{
    static constexpr std::array<const char*, 5> names = {"", "Fair", "Good", "V.Good", "Best"};
    return rating >= 1 && rating <= 4 ? names[std::size_t(rating)] : "";
}

DaysLayout JsonDays()
{
    return {"[",
            [](const DayRow& row, std::size_t index) {
                std::string out = index ? ",\n {" : "\n {";
                bool first = true;
                for (const auto& [key, value] : Fields()) {
                    out += (first ? "\"" : ", \"") + std::string(key) + "\": " + value(row);
                    first = false;
                }
                return out + "}";
            },
            [](std::size_t count) { return count == 0 ? "]\n" : "\n]\n"; }};
}

DaysLayout CsvDays()
{
    std::string head;
    for (const auto& [key, value] : Fields())
        head += (head.empty() ? "" : ",") + std::string(key);
    return {head + "\n",
            [](const DayRow& row, std::size_t) {
                std::string line;
                for (const auto& [key, value] : Fields())
                    line += (&key == &Fields().front().first ? "" : ",") + CsvCell(value(row));
                return line + "\n";
            },
            [](std::size_t) { return std::string(); }};
}

DaysLayout TextDays(const std::string& locationCaption)
{
    return {locationCaption + "\n\n" +
                "Date        Rating  Sunrise Sunset  Moonrise Transit Moonset  Major1  Major2  "
                "Minor1  Minor2  Moon  Events\n",
            [](const DayRow& r, std::size_t) {
                char line[200];
                std::snprintf(line, sizeof line,
                              "%s  %-6s  %s   %s   %s    %s   %s    %s   %s   %s   %s   %3d%%  ",
                              Date(r.Year, r.Month, r.Day).c_str(), RatingName(r.Rating).c_str(),
                              Clock24(r.Sunrise).c_str(), Clock24(r.Sunset).c_str(),
                              Clock24(r.Moonrise).c_str(), Clock24(r.MoonTransit).c_str(),
                              Clock24(r.Moonset).c_str(), Clock24(r.Major1).c_str(),
                              Clock24(r.Major2).c_str(), Clock24(r.Minor1).c_str(),
                              Clock24(r.Minor2).c_str(), r.IllumPercent);
                return line + SecondMoonEvents(r) + Trimmed(r.Text) + "\n";
            },
            [](std::size_t) { return std::string(); }};
}

std::string AllDays(const DaysLayout& layout, const std::vector<DayRow>& rows)
{
    std::string out = layout.Head;
    for (std::size_t i = 0; i < rows.size(); ++i)
        out += layout.Row(rows[i], i);
    return out + layout.Tail(rows.size());
}

namespace {

// The universal time of a clock hour on the row's day, with the clock's offset at that hour.
std::chrono::sys_seconds UtcOf(const DayRow& r, double clockHours)
{
    using namespace std::chrono;
    const sys_days day0{year{r.Year} / month{unsigned(r.Month)} / unsigned(r.Day)};
    return day0 +
           seconds{std::llround((clockHours + r.Clock.OffsetAt(clockHours)) * SecondsPerHour)};
}

// "YYYYMMDDTHHMMSSZ".
std::string UtcStamp(std::chrono::sys_seconds t)
{
    using namespace std::chrono;
    const sys_days day = floor<days>(t);
    const year_month_day ymd{day};
    const hh_mm_ss hms{t - day};
    char buf[40];
    std::snprintf(buf, sizeof buf, "%04d%02u%02uT%02d%02d%02dZ", int(ymd.year()),
                  unsigned(ymd.month()), unsigned(ymd.day()), int(hms.hours().count()),
                  int(hms.minutes().count()), int(hms.seconds().count()));
    return buf;
}

// One content line, folded at 75 octets as RFC 5545 asks, never inside a UTF-8 character.
std::string IcsLine(const std::string& line)
{
    std::string out;
    for (std::size_t i = 0; i < line.size();) {
        const std::size_t width = std::min<std::size_t>(i == 0 ? 75 : 74, line.size() - i);
        std::size_t n = width;
        while (n > 0 && i + n < line.size() &&
               (static_cast<unsigned char>(line[i + n]) & 0xC0) == 0x80)
            --n;
        if (n == 0) // no character start in reach (not UTF-8): cut at the width
            n = width;
        out += (i ? " " : "") + line.substr(i, n) + "\r\n";
        i += n;
    }
    return out;
}

// A TEXT value: backslash, semicolon and comma escaped, a line break as "\n"; other control
// characters cannot stand in a value and are left out.
std::string IcsText(const std::string& s)
{
    std::string out;
    for (const char c : s) {
        if (c == '\n') {
            out += "\\n";
            continue;
        }
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7F)
            continue;
        if (c == ',' || c == ';' || c == '\\')
            out += '\\';
        out += c;
    }
    return out;
}

// UIDs name the day, the kind and the place, so that the calendars of two places can be
// imported side by side.
std::string Uid(const DayRow& r, const std::string& what, const std::string& placeId)
{
    return "UID:" + Date(r.Year, r.Month, r.Day) + "-" + what + "-" + placeId + "@quillmere";
}

// A major (two hours) or minor (70 minutes) period around its centre.
std::string TimedEvent(const DayRow& r, const std::string& what, double centre,
                       const std::string& stamp, const IcsPlace& place)
{
    const bool major = what.starts_with("major");
    // The period's length is real time either side of its centre's instant, also where the
    // clock changes inside it.
    const std::chrono::minutes half{major ? 60 : 35};
    const std::chrono::sys_seconds at = UtcOf(r, centre);
    return IcsLine("BEGIN:VEVENT") + IcsLine(Uid(r, what, place.Id)) + IcsLine("DTSTAMP:" + stamp) +
           IcsLine("DTSTART:" + UtcStamp(at - half)) + IcsLine("DTEND:" + UtcStamp(at + half)) +
           IcsLine("SUMMARY:" + IcsText((major ? "Major period" : "Minor period") +
                                        std::string(" (") + place.Name + ")")) +
           IcsLine("TRANSP:TRANSPARENT") + IcsLine("END:VEVENT");
}

// A day's events: the rating as an all-day event, then the periods that happen in the day
// (one Major event per real transit).
std::string IcsDay(const DayRow& r, const IcsPlace& place, const std::string& stamp)
{
    std::string out;
    if (r.Rating >= 1) {
        char compact[9];
        std::snprintf(compact, sizeof compact, "%04d%02d%02d", r.Year, r.Month, r.Day);
        out += IcsLine("BEGIN:VEVENT") + IcsLine(Uid(r, "rating", place.Id)) +
               IcsLine("DTSTAMP:" + stamp) + IcsLine("DTSTART;VALUE=DATE:" + std::string(compact)) +
               IcsLine("DURATION:P1D") + IcsLine("SUMMARY:" + RatingName(r.Rating)) +
               IcsLine("TRANSP:TRANSPARENT") + IcsLine("END:VEVENT");
    }
    for (const auto& [what, period] : {std::pair{"major1", &r.Major1},
                                       {"major2", &r.Major2},
                                       {"minor1", &r.Minor1},
                                       {"minor2", &r.Minor2}})
        if (period->Hours)
            out += TimedEvent(r, what, *period->Hours, stamp, place);
    return out;
}

} // namespace

DaysLayout IcsDays(const IcsPlace& place, const std::string& stamp)
{
    return {IcsLine("BEGIN:VCALENDAR") + IcsLine("VERSION:2.0") +
                IcsLine("PRODID:-//Quillmere//Fishing forecast//EN") +
                IcsLine("CALSCALE:GREGORIAN") +
                IcsLine("X-WR-CALNAME:" + IcsText("Fishing times, " + place.Name)),
            [place, stamp](const DayRow& r, std::size_t) { return IcsDay(r, place, stamp); },
            [](std::size_t) { return IcsLine("END:VCALENDAR"); }};
}

namespace {
// "YYYY-MM-DD HH:MM" of an event's local instant: the day and the minute every view shows.
std::string LocalText(double jd)
{
    const CivilDate c = JdToCivil(EventDayJD(jd));
    char date[16];
    std::snprintf(date, sizeof date, "%04d-%02d-%02d ", c.Year, c.Month, c.Day);
    return date + EventClock(jd, 3, false);
}

} // namespace

std::string EventsAsJson(int year, const std::vector<EventRow>& events)
{
    std::string out = "{\"year\": " + std::to_string(year) + ", \"events\": [";
    for (std::size_t i = 0; i < events.size(); ++i) {
        const EventRow& e = events[i];
        out += (i ? ",\n  " : "\n  ") + std::string("{\"type\": ") + JsonString(e.Type) +
               ", \"jd\": " + ExactNumber(e.JD) +
               ", \"local\": " + JsonString(LocalText(e.LocalJD)) +
               ", \"date\": " + JsonString(Date(e.Year, e.Month, e.Day)) + "}";
    }
    return out + (events.empty() ? "]}\n" : "\n]}\n");
}

std::string EventsAsText(int year, const std::vector<EventRow>& events,
                         const std::string& locationCaption)
{
    std::string out =
        "Events of " + std::to_string(year) + ", " + locationCaption + " (local clock time)\n\n";
    for (const EventRow& e : events)
        out += LocalText(e.LocalJD) + "  " + Trimmed(e.Caption) + "\n";
    return out;
}
