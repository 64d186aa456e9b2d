// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/calendar.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

// One hand-built year table: its marks (day, code) and the ratings expected from a day on.
struct RatingCase {
    const char* What;
    std::vector<std::pair<int, int>> Phases, Perigees, Declinations;
    std::int16_t South;
    int From;
    std::vector<int> Ratings;
};

TEST(DayRatings, AroundPhasesPerigeesAndDeclinations)
{
    const RatingCase cases[] = {
        {"new moon on day 10", {{10, 1}}, {}, {}, 0, 7, {0, 2, 4, 4, 4, 4, 2, 2, 0}},
        {"full moon on day 2", {{2, 3}}, {}, {}, 0, 1, {2, 4, 4, 3, 2, 2, 0}},
        {"new moon on day 1", {{1, 1}}, {}, {}, 0, 1, {4, 4, 4, 2, 2, 0}},
        {"a later phase overwrites",
         {{20, 3}, {23, 1}},
         {},
         {},
         0,
         18,
         {2, 2, 4, 2, 4, 4, 4, 4, 2, 2}},
        {"perigee beside a full moon", {{100, 3}}, {{101, 1}}, {}, 0, 98, {2, 2, 4, 4, 4, 2, 2}},
        {"a perigee alone", {}, {{200, 1}}, {}, 0, 199, {1, 1, 1}},
        {"north extreme in the north", {}, {}, {{50, 1}}, 0, 49, {1, 1, 1}},
        {"south extreme in the north", {}, {}, {{64, 2}}, 0, 63, {0, 0, 0}},
        {"north extreme in the south", {}, {}, {{50, 1}}, -1, 49, {0, 0, 0}},
        {"south extreme in the south", {}, {}, {{64, 2}}, -1, 63, {1, 1, 1}},
        {"perigee on the north extreme", {}, {{60, 1}}, {{60, 1}}, 0, 59, {2, 2, 2}},
        {"never above 4", {{150, 1}}, {{150, 1}}, {}, 0, 148, {2, 4, 4, 4, 4}},
        // Near the year's end d + 1 needs d < 364, d + 2 needs d < 363, d + 3 and d + 4 are
        // skipped.
        {"phase at the year's end", {{362, 1}}, {}, {}, 0, 360, {2, 4, 4, 4, 4, 0, 0, 0}},
    };
    for (const RatingCase& c : cases) {
        Calendar cal;
        cal.YearSlots = 366;
        cal.YearDays.assign(368, DayMarks{});
        for (const auto& [day, code] : c.Phases)
            cal.YearDays[std::size_t(day)].Phase = std::int16_t(code);
        for (const auto& [day, code] : c.Perigees)
            cal.YearDays[std::size_t(day)].Perigee = std::int16_t(code);
        for (const auto& [day, code] : c.Declinations)
            cal.YearDays[std::size_t(day)].Declination = std::int16_t(code);
        SetDayRatings(cal, c.South);
        std::vector<int> got;
        for (std::size_t d = 0; d < c.Ratings.size(); ++d)
            got.push_back(cal.YearDays[std::size_t(c.From) + d].Rating);
        EXPECT_EQ(got, c.Ratings) << c.What;
    }
}

// The Moon's age counts from the last new moon; the days next to a perigee are marked -1.
TEST(DayRatings, MoonAgeAndPerigeeNeighbours)
{
    Calendar cal;
    cal.YearSlots = 366;
    cal.YearDays.assign(368, DayMarks{});
    cal.YearDays[10].Phase = 1;
    cal.YearDays[200].Perigee = 1;
    SetDayRatings(cal, 0);
    for (const auto& [day, age] : {std::pair{1, 21}, {9, 29}, {10, 0}, {11, 1}, {40, 30}})
        EXPECT_EQ(cal.YearDays[std::size_t(day)].MoonAge, age) << day;
    EXPECT_EQ(cal.YearDays[199].Perigee, -1);
    EXPECT_EQ(cal.YearDays[201].Perigee, -1);
}

} // namespace
