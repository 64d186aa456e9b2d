// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/calendar.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace {

Calendar EmptyYear()
{
    Calendar cal;
    cal.YearSlots = 366;
    cal.YearDays.assign(368, DayMarks{});
    return cal;
}

// Sets the code of each "day:code" of a field on the year's days.
void Mark(Calendar& cal, const std::string& field, std::int16_t DayMarks::*code)
{
    std::istringstream marks(field);
    int day = 0, value = 0;
    char colon = 0;
    while (marks >> day >> colon >> value)
        cal.YearDays[std::size_t(day)].*code = std::int16_t(value);
}

// Every case of calendar/data/day_ratings.txt.
TEST(DayRatings, AroundPhasesPerigeesAndDeclinations)
{
    std::ifstream file(QUILLMERE_DAY_RATINGS);
    ASSERT_TRUE(file) << QUILLMERE_DAY_RATINGS;
    int cases = 0;
    for (std::string line; std::getline(file, line);) {
        std::vector<std::string> f;
        std::istringstream fields(line);
        for (std::string field; std::getline(fields, field, '|');)
            f.push_back(field);
        if (line.starts_with('#') || f.size() != 7)
            continue;
        Calendar cal = EmptyYear();
        Mark(cal, f[1], &DayMarks::Phase);
        Mark(cal, f[2], &DayMarks::Perigee);
        Mark(cal, f[3], &DayMarks::Declination);
        SetDayRatings(cal, std::int16_t(std::stoi(f[4])));
        std::istringstream ratings(f[6]);
        std::size_t day = std::stoul(f[5]);
        for (int rating = 0; ratings >> rating; ++day)
            EXPECT_EQ(cal.YearDays[day].Rating, rating) << f[0] << ", day " << day;
        ++cases;
    }
    EXPECT_GE(cases, 13);
}

// The Moon's age counts from the last new moon; the days next to a perigee are marked -1.
TEST(DayRatings, MoonAgeAndPerigeeNeighbours)
{
    Calendar cal = EmptyYear();
    cal.YearDays[10].Phase = 1;
    cal.YearDays[200].Perigee = 1;
    SetDayRatings(cal, 0);
    for (const auto& [day, age] : {std::pair{1, 21}, {9, 29}, {10, 0}, {11, 1}, {40, 30}})
        EXPECT_EQ(cal.YearDays[std::size_t(day)].MoonAge, age) << day;
    EXPECT_EQ(cal.YearDays[199].Perigee, -1);
    EXPECT_EQ(cal.YearDays[201].Perigee, -1);
}

} // namespace
