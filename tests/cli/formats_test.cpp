#include "cli/formats.h"

#include <gtest/gtest.h>

namespace {

DayRow Sample()
{
    DayRow r;
    r.Year = 2024;
    r.Month = 2;
    r.Day = 9;
    r.Sunrise = 6.9;
    r.Sunset = 17.85;
    r.Moonrise = std::nullopt;
    r.MoonTransit = 11.5;
    r.Moonset = 17.25;
    r.Major1 = 11.5;
    r.Major2 = 23.9;
    r.Minor1 = 5.25;
    r.Minor2 = std::nullopt;
    r.Minor2Text = "*******";
    r.Rating = 4;
    r.Text = " Moon at Perigee , \"x\"";
    r.UtcOffsetHours = 6.0;
    return r;
}

TEST(ForecastFormats, JsonHasEveryKeyAndNulls)
{
    const std::string json = DaysAsJson({Sample()});
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
    EXPECT_NE(json.find("\"moonrise\": null"), std::string::npos);
    EXPECT_NE(json.find("\"minor2\": null"), std::string::npos);
    EXPECT_NE(json.find("\"sunset\": 17.85,"), std::string::npos);
    EXPECT_NE(json.find("\"text\": \" Moon at Perigee , \\\"x\\\"\""), std::string::npos);
    EXPECT_EQ(DaysAsJson({}), "[]\n");
}

TEST(ForecastFormats, CsvQuotesAndEmptyCells)
{
    const std::string csv = DaysAsCsv({Sample()});
    const std::string header = csv.substr(0, csv.find('\n'));
    EXPECT_EQ(header.rfind("date,sunrise,sunset,sun_transit,", 0), 0u);
    const std::string row = csv.substr(header.size() + 1);
    EXPECT_EQ(row.rfind("2024-02-09,6.9,17.85,", 0), 0u);
    EXPECT_NE(row.find(",,11.5,17.25,"), std::string::npos); // no moonrise
    EXPECT_NE(row.find(",\" Moon at Perigee , \"\"x\"\"\","), std::string::npos);
}

// iCalendar: CRLF lines of at most 75 octets, the rating as an all-day event, majors and the
// one minor as timed events in universal time.
TEST(ForecastFormats, IcsEventsInUniversalTime)
{
    const std::string ics = DaysAsIcs({Sample()},
                                      "A very long location name that makes the "
                                      "calendar name line longer than the limit",
                                      "20261123T000000Z");
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
    const std::string ics = DaysAsIcs({}, name, "20261123T000000Z");
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

TEST(ForecastFormats, TextTableAndRatingNames)
{
    const std::string text = DaysAsText({Sample()}, "Alexandria, LA");
    EXPECT_EQ(text.rfind("Alexandria, LA\n\nDate", 0), 0u);
    EXPECT_NE(text.find("2024-02-09  Best    06:54   17:51     -      11:30"), std::string::npos)
        << text;
    EXPECT_EQ(RatingName(1), "Fair");
    EXPECT_EQ(RatingName(3), "V.Good");
    EXPECT_EQ(RatingName(0), "");
    EXPECT_EQ(ExactNumber(0.1), "0.1");
}

} // namespace
