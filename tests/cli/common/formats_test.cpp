// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/common/formats.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>

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
    std::ifstream keys(QUILLMERE_JSON_KEYS);
    int count = 0;
    for (std::string key; std::getline(keys, key);)
        if (!key.empty() && key[0] != '#') {
            EXPECT_NE(json.find("\"" + key + "\": "), std::string::npos) << key;
            ++count;
        }
    EXPECT_EQ(count, 39);
    for (const char* value :
         {"\"date\": \"2024-02-09\"", "\"moonrise\": null, \"moonrise_status\": \"none\"",
          "\"moonset\": 17.25, \"moonset_status\": \"ok\"", "\"minor2\": null",
          "\"sunset\": 17.85,", "\"text\": \" Moon at Perigee , \\\"x\\\"\""})
        EXPECT_NE(json.find(value), std::string::npos) << value;
    EXPECT_EQ(AllDays(JsonDays(), {}), "[]\n");
    EXPECT_EQ(ExactNumber(std::nan("")), "null"); // JSON has no NaN
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

// iCalendar (its lines are the strict iCalendar check's): the rating as an all-day event,
// majors and the one minor as timed events in universal time.
TEST(ForecastFormats, IcsEventsInUniversalTime)
{
    const std::string ics =
        AllDays(IcsDays({"Alexandria", "1W-2N-z6"}, "20261123T000000Z"), {Sample()});
    std::size_t events = 0;
    for (std::size_t at = ics.find("BEGIN:VEVENT"); at != ics.npos;
         at = ics.find("BEGIN:VEVENT", at + 1))
        ++events;
    EXPECT_EQ(events, 4u); // rating, two majors, one minor
    // Major 1 at 11:30 local, zone 6: 16:30 UT, one hour either side; major 2 at 23:54 local
    // ends after midnight UT of the next day; minor 1 at 05:15 local: 35 minutes either side
    // of 11:15 UT.
    for (const char* line :
         {"DTSTART;VALUE=DATE:20240209", "SUMMARY:Best", "DTSTART:20240209T163000Z",
          "DTEND:20240209T183000Z", "DTEND:20240210T065400Z", "DTSTART:20240209T104000Z",
          "DTEND:20240209T115000Z"})
        EXPECT_NE(ics.find(line), std::string::npos) << line;
}

TEST(ForecastFormats, TextTable)
{
    const std::string text = AllDays(TextDays("Alexandria, LA"), {Sample()});
    EXPECT_EQ(text.rfind("Alexandria, LA\n\nDate", 0), 0u);
    EXPECT_NE(text.find("2024-02-09  Best    06:54   17:51   *****    11:30"), std::string::npos)
        << text;
}

} // namespace
