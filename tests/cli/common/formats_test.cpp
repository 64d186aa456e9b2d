// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/common/formats.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

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

TEST(ForecastFormats, JsonHasEveryKeyAndNulls)
{
    const std::string json = AllDays(JsonDays(), {Sample()});
    for (const char* key : {"date",
                            "sunrise",
                            "sunset",
                            "sun_transit",
                            "civil_dawn",
                            "civil_dusk",
                            "nautical_dawn",
                            "nautical_dusk",
                            "astronomical_dawn",
                            "astronomical_dusk",
                            "day_length",
                            "moonrise",
                            "moon_transit",
                            "moonset",
                            "major1",
                            "major2",
                            "minor1",
                            "minor2",
                            "major1_text",
                            "major2_text",
                            "minor1_text",
                            "minor2_text",
                            "sunrise_text",
                            "sunset_text",
                            "illum_percent",
                            "waxing",
                            "rating",
                            "moon_age",
                            "phase",
                            "perigee",
                            "declination",
                            "season",
                            "holiday",
                            "text",
                            "sun_azimuth",
                            "sun_altitude",
                            "moon_azimuth",
                            "moon_altitude",
                            "moon_parallactic_angle"})
        EXPECT_NE(json.find("\"" + std::string(key) + "\": "), std::string::npos) << key;
    EXPECT_NE(json.find("\"date\": \"2024-02-09\""), std::string::npos);
    EXPECT_NE(json.find("\"moonrise\": null, \"moonrise_status\": \"none\""), std::string::npos);
    EXPECT_NE(json.find("\"moonset\": 17.25, \"moonset_status\": \"ok\""), std::string::npos);
    EXPECT_NE(json.find("\"minor2\": null"), std::string::npos);
    EXPECT_NE(json.find("\"sunset\": 17.85,"), std::string::npos);
    EXPECT_NE(json.find("\"text\": \" Moon at Perigee , \\\"x\\\"\""), std::string::npos);
    EXPECT_EQ(AllDays(JsonDays(), {}), "[]\n");
}

TEST(ForecastFormats, CsvQuotesAndEmptyCells)
{
    const std::string csv = AllDays(CsvDays(), {Sample()});
    const std::string header = csv.substr(0, csv.find('\n'));
    EXPECT_EQ(header.rfind("date,sunrise,sunrise_status,sunset,sunset_status,sun_transit,", 0), 0u);
    const std::string row = csv.substr(header.size() + 1);
    EXPECT_EQ(row.rfind("2024-02-09,6.9,ok,17.85,ok,", 0), 0u);
    EXPECT_NE(row.find(",,none,11.5,ok,17.25,ok,"), std::string::npos); // no moonrise
    EXPECT_NE(row.find(",\" Moon at Perigee , \"\"x\"\"\","), std::string::npos);
}

// iCalendar: CRLF lines of at most 75 octets, the rating as an all-day event, majors and the
// one minor as timed events in universal time.
TEST(ForecastFormats, IcsEventsInUniversalTime)
{
    const std::string ics = AllDays(IcsDays({"A very long location name that makes the "
                                             "calendar name line longer than the limit",
                                             "1W-2N-z6"},
                                            "20261123T000000Z"),
                                    {Sample()});
    std::size_t start = 0, events = 0;
    while (start < ics.size()) {
        const std::size_t end = ics.find("\r\n", start);
        ASSERT_NE(end, std::string::npos);
        EXPECT_LE(end - start, 75u);
        events += ics.compare(start, end - start, "BEGIN:VEVENT") == 0;
        start = end + 2;
    }
    EXPECT_EQ(events, 4u); // rating, two majors, one minor
    EXPECT_NE(ics.find("DTSTART;VALUE=DATE:20240209"), std::string::npos);
    EXPECT_NE(ics.find("SUMMARY:Best"), std::string::npos);
    // Major 1 at 11:30 local, zone 6: 16:30 UT, one hour either side.
    EXPECT_NE(ics.find("DTSTART:20240209T163000Z"), std::string::npos);
    EXPECT_NE(ics.find("DTEND:20240209T183000Z"), std::string::npos);
    // Major 2 at 23:54 local ends after midnight UT of the next day.
    EXPECT_NE(ics.find("DTEND:20240210T065400Z"), std::string::npos);
    // Minor 1 at 05:15 local: 35 minutes either side of 11:15 UT.
    EXPECT_NE(ics.find("DTSTART:20240209T104000Z"), std::string::npos);
    EXPECT_NE(ics.find("DTEND:20240209T115000Z"), std::string::npos);
}

// A folded line breaks between characters, so that unfolding gives back the UTF-8 name.
TEST(ForecastFormats, IcsFoldingKeepsCharactersWhole)
{
    std::string name = "x"; // shifts the acute e's (two octets each) so a fold falls inside one
    for (int i = 0; i < 40; ++i)
        name += "\xc3\xa9";
    const std::string ics = AllDays(IcsDays({name, "1W-2N-z6"}, "20261123T000000Z"), {});
    const std::size_t from = ics.find("X-WR-CALNAME:");
    const std::size_t to = ics.find("\r\nEND:VCALENDAR");
    std::string unfolded;
    for (std::size_t i = from; i < to; ++i) {
        if (ics.compare(i, 3, "\r\n ") == 0) {
            EXPECT_LE(i - (ics.rfind("\r\n", i - 1) + 2), 75u);
            EXPECT_NE(static_cast<unsigned char>(ics[i + 3]) & 0xC0, 0x80) << i;
            i += 2;
            continue;
        }
        unfolded += ics[i];
    }
    EXPECT_EQ(unfolded, "X-WR-CALNAME:Fishing times\\, " + name);
}

// Lines of an iCalendar text, split at CRLF; a bare LF or CR anywhere is a failure.
std::vector<std::string> IcsLines(const std::string& ics)
{
    std::vector<std::string> lines;
    for (std::size_t start = 0; start < ics.size();) {
        const std::size_t end = ics.find("\r\n", start);
        if (end == std::string::npos) {
            ADD_FAILURE() << "text after the last CRLF";
            break;
        }
        lines.push_back(ics.substr(start, end - start));
        EXPECT_EQ(lines.back().find_first_of("\r\n"), std::string::npos) << lines.back();
        start = end + 2;
    }
    return lines;
}

// A line break in the name is escaped inside the value; bytes that start no UTF-8 character
// still fold (the fold once searched for a character start for ever).
TEST(ForecastFormats, IcsNamesStayInsideTheirValue)
{
    const std::string ics =
        AllDays(IcsDays({"Camp\nEND:VCALENDAR;x", "1W-2N-z6"}, "20261123T000000Z"), {Sample()});
    const auto lines = IcsLines(ics);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "END:VCALENDAR"), 1);
    EXPECT_EQ(lines.back(), "END:VCALENDAR");
    EXPECT_NE(ics.find("X-WR-CALNAME:Fishing times\\, Camp\\nEND:VCALENDAR\\;x\r\n"),
              std::string::npos);

    const std::string raw(200, '\x80');
    for (const std::string& line :
         IcsLines(AllDays(IcsDays({raw, "1W-2N-z6"}, "20261123T000000Z"), {})))
        EXPECT_LE(line.size(), 75u);
}

// Two places share no UID; a period that does not happen in the day is no event.
TEST(ForecastFormats, IcsUidsPerPlaceAndOnlyRealPeriods)
{
    DayRow r = Sample();
    r.Major1 = {std::nullopt, EventStatus::None};
    const auto uids = [&r](const std::string& id) {
        std::vector<std::string> found;
        for (const std::string& line :
             IcsLines(AllDays(IcsDays({"Camp", id}, "20261123T000000Z"), {r})))
            if (line.starts_with("UID:"))
                found.push_back(line);
        return found;
    };
    const auto a = uids("92.4200W-31.2500N-z6"), b = uids("80.2000W-25.7700N-z5");
    EXPECT_EQ(a.size(), 3u); // rating, the second major, the minor
    for (const std::string& uid : a)
        EXPECT_EQ(std::count(b.begin(), b.end(), uid), 0) << uid;
    EXPECT_EQ(std::count_if(a.begin(), a.end(),
                            [](const std::string& u) { return u.find("major1") != u.npos; }),
              0);
}

TEST(ForecastFormats, TextTableAndRatingNames)
{
    const std::string text = AllDays(TextDays("Alexandria, LA"), {Sample()});
    EXPECT_EQ(text.rfind("Alexandria, LA\n\nDate", 0), 0u);
    EXPECT_NE(text.find("2024-02-09  Best    06:54   17:51   *****    11:30"), std::string::npos)
        << text;
    EXPECT_EQ(RatingName(1), "Fair");
    EXPECT_EQ(RatingName(3), "V.Good");
    EXPECT_EQ(RatingName(0), "");
    EXPECT_EQ(ExactNumber(0.1), "0.1");
    EXPECT_EQ(ExactNumber(std::nan("")), "null"); // JSON has no NaN
}

} // namespace
