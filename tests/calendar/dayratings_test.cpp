// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/calendar.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

Calendar EmptyYear(int slots = 366)
{
    Calendar cal;
    cal.YearSlots = std::int16_t(slots);
    cal.YearDays.assign(std::size_t(slots) + 2, DayMarks{});
    return cal;
}

std::vector<int> Ratings(const Calendar& cal, int from, int to)
{
    std::vector<int> r;
    for (int d = from; d <= to; ++d)
        r.push_back(cal.YearDays[std::size_t(d)].Rating);
    return r;
}

TEST(DayRatings, NewMoonOnDayTenAndTheMoonsAge)
{
    Calendar cal = EmptyYear();
    cal.YearDays[10].Phase = 1;
    SetDayRatings(cal, 0);
    EXPECT_EQ(Ratings(cal, 7, 15), (std::vector<int>{0, 2, 4, 4, 4, 4, 2, 2, 0}));
    for (int d = 1; d <= 9; ++d)
        EXPECT_EQ(cal.YearDays[std::size_t(d)].MoonAge, 20 + d) << d; // 21 .. 29
    EXPECT_EQ(cal.YearDays[10].MoonAge, 0);
    EXPECT_EQ(cal.YearDays[11].MoonAge, 1);
    EXPECT_EQ(cal.YearDays[40].MoonAge, 30);
}

TEST(DayRatings, FullMoonOnDayTwoAndNewMoonOnDayOne)
{
    Calendar cal = EmptyYear();
    cal.YearDays[2].Phase = 3;
    SetDayRatings(cal, 0);
    EXPECT_EQ(Ratings(cal, 1, 7), (std::vector<int>{2, 4, 4, 3, 2, 2, 0}));

    Calendar first = EmptyYear();
    first.YearDays[1].Phase = 1;
    SetDayRatings(first, 0);
    EXPECT_EQ(Ratings(first, 1, 6), (std::vector<int>{4, 4, 4, 2, 2, 0}));
}

// A later phase overwrites an earlier one where their days overlap.
TEST(DayRatings, LaterPhaseOverwrites)
{
    Calendar cal = EmptyYear();
    cal.YearDays[20].Phase = 3;
    cal.YearDays[23].Phase = 1; // not real, but shows the order of writing
    SetDayRatings(cal, 0);
    EXPECT_EQ(Ratings(cal, 18, 27), (std::vector<int>{2, 2, 4, 2, 4, 4, 4, 4, 2, 2}));
}

TEST(DayRatings, PerigeeBesideAFullMoon)
{
    Calendar cal = EmptyYear();
    cal.YearDays[100].Phase = 3;
    cal.YearDays[101].Perigee = 1;
    cal.YearDays[200].Perigee = 1;
    SetDayRatings(cal, 0);
    EXPECT_EQ(Ratings(cal, 98, 104), (std::vector<int>{2, 2, 4, 4, 4, 2, 2}));
    EXPECT_EQ(cal.YearDays[100].Perigee, -1);
    EXPECT_EQ(cal.YearDays[102].Perigee, -1);
    EXPECT_EQ(Ratings(cal, 199, 201), (std::vector<int>{1, 1, 1}));
    EXPECT_EQ(cal.YearDays[199].Perigee, -1);
    EXPECT_EQ(cal.YearDays[201].Perigee, -1);
}

// Only the greatest declination toward the observer's hemisphere raises the rating.
TEST(DayRatings, DeclinationFollowsTheHemisphere)
{
    for (const std::int16_t south : {std::int16_t(0), std::int16_t(-1)}) {
        Calendar cal = EmptyYear();
        cal.YearDays[50].Declination = 1;
        cal.YearDays[64].Declination = 2;
        SetDayRatings(cal, south);
        const std::vector<int> raised{1, 1, 1}, none{0, 0, 0};
        EXPECT_EQ(Ratings(cal, 49, 51), south ? none : raised);
        EXPECT_EQ(Ratings(cal, 63, 65), south ? raised : none);
    }
}

// A perigee on the day of the northern extreme raises twice; nothing goes above 4.
TEST(DayRatings, RaisesAddUpToFour)
{
    Calendar cal = EmptyYear();
    cal.YearDays[60].Perigee = 1;
    cal.YearDays[60].Declination = 1;
    cal.YearDays[150].Phase = 1;
    cal.YearDays[150].Perigee = 1;
    SetDayRatings(cal, 0);
    EXPECT_EQ(Ratings(cal, 59, 61), (std::vector<int>{2, 2, 2}));
    EXPECT_EQ(Ratings(cal, 148, 152), (std::vector<int>{2, 4, 4, 4, 4}));
}

// Near the year's end the days after a phase are written only while clear of the end.
TEST(DayRatings, PhaseAtTheYearsEnd)
{
    Calendar cal = EmptyYear(366);
    cal.YearDays[362].Phase = 1;
    SetDayRatings(cal, 0);
    // d + 1 needs d < 364, d + 2 needs d < 363, d + 3 and d + 4 are skipped.
    EXPECT_EQ(Ratings(cal, 360, 367), (std::vector<int>{2, 4, 4, 4, 4, 0, 0, 0}));
}

} // namespace
