// SPDX-License-Identifier: GPL-3.0-or-later
// Catch statistics over a hand-built year whose catches were counted by hand: which days count
// as fished, each group's days, total and rate, and the peak time's distance from the nearest
// period over midnight and without minors.
#include "logdb/catchstats.h"

#include <gtest/gtest.h>

namespace {

CatchDay Day(int month, int day, int rating, int moonAge, std::optional<int> taken,
             std::string peak = {}, std::vector<double> periods = {}, std::string notes = {})
{
    return {2024,   month,           day,
            rating, moonAge,         std::move(periods),
            taken,  std::move(peak), std::move(notes)};
}

// Nine days of January and February 2024 (1 January was a Monday); the comment gives the
// weekday, the phase the moon's age falls in, and the peak time's distance from the nearest
// period.
std::vector<CatchDay> HandBuiltYear()
{
    return {
        Day(1, 6, 4, 25, 5, "7:00 AM", {6.5, 18.9}),        // Sat, Last Quarter, 30 min
        Day(1, 7, 4, 26, 3, "12:00 AM", {23.75, 11.5}),     // Sun, New Moon, 15 min over midnight
        Day(1, 10, 3, 0, 4, "11:00 PM", {0.25, 12.7}),      // Wed, New Moon, 75 min over midnight
        Day(1, 14, 0, 4, {}, {}, {}, "skunked"),            // Sun, First Quarter, notes only
        Day(1, 25, 4, 14, 0, "6:00 PM", {17.0, 5.0, 11.2}), // Thu, Full Moon, 60 min
        Day(2, 1, 1, 21, 2, "3:00 PM", {9.0, 21.4}),        // Thu, Last Quarter, 6 h, no minors
        Day(2, 2, 0, 22, 1, {}, {}, "  "),                  // Fri, Last Quarter, total only
        Day(2, 3, 4, 23, {}, {}, {3.0}, "   "),             // blank notes: not fished
        Day(2, 4, 0, 29, {}, "5:00 AM"),                    // Sun, New Moon, peak without periods
    };
}

struct Expected {
    std::string Name;
    int Days;
    long Total;
};

void ExpectGroups(const CatchGrouping& grouping, const std::vector<Expected>& expected)
{
    ASSERT_EQ(grouping.Groups.size(), expected.size()) << grouping.Title;
    for (size_t i = 0; i < expected.size(); ++i) {
        const CatchGroup& g = grouping.Groups[i];
        EXPECT_EQ(g.Name, expected[i].Name) << grouping.Title;
        EXPECT_EQ(g.DaysFished, expected[i].Days) << grouping.Title << " " << g.Name;
        EXPECT_EQ(g.TotalTaken, expected[i].Total) << grouping.Title << " " << g.Name;
        const double rate = expected[i].Days ? double(expected[i].Total) / expected[i].Days : 0;
        EXPECT_DOUBLE_EQ(g.PerDay(), rate) << grouping.Title << " " << g.Name;
    }
}

} // namespace

// A filled total (nought too), peak time or note makes a day fished; the peak time's distance
// is to the nearest period, over midnight too.
TEST(CatchStatistics, GroupsAHandBuiltYearByRatingPhaseAgeWeekdayAndPeakDistance)
{
    const CatchStatistics stats = ComputeCatchStatistics(HandBuiltYear());
    EXPECT_EQ(stats.All.DaysFished, 8);
    EXPECT_EQ(stats.All.TotalTaken, 15);
    ExpectGroups(
        stats.Groupings[ByRating],
        {{"Best", 3, 8}, {"V.Good", 1, 4}, {"Good", 0, 0}, {"Fair", 1, 2}, {"unrated", 3, 1}});
    ExpectGroups(
        stats.Groupings[ByMoonPhase],
        {{"New Moon", 3, 7}, {"First Quarter", 1, 0}, {"Full Moon", 1, 0}, {"Last Quarter", 3, 8}});
    ExpectGroups(stats.Groupings[ByWeekday], {{"Sunday", 3, 3},
                                              {"Monday", 0, 0},
                                              {"Tuesday", 0, 0},
                                              {"Wednesday", 1, 4},
                                              {"Thursday", 2, 2},
                                              {"Friday", 1, 1},
                                              {"Saturday", 1, 5}});
    ExpectGroups(
        stats.Groupings[ByPeakDistance],
        {{"within 30 min", 2, 8}, {"30-60 min", 1, 0}, {"60-120 min", 1, 4}, {"further", 1, 2}});
    std::vector<Expected> ages;
    for (int age = 0; age <= 29; ++age)
        ages.push_back({std::to_string(age), 0, 0});
    for (const auto& [age, total] :
         {std::pair{25, 5}, {26, 3}, {0, 4}, {4, 0}, {14, 0}, {21, 2}, {22, 1}, {29, 0}})
        ages[size_t(age)] = {std::to_string(age), 1, total};
    ExpectGroups(stats.Groupings[ByMoonAge], ages);
}

TEST(CatchStatistics, SummaryComparesTheBestAndTheLeastRatedDaysFished)
{
    EXPECT_EQ(CatchSummary(ComputeCatchStatistics(HandBuiltYear())),
              "On Best days you took 2.7 fish per day fished, on unrated days 0.3");
    EXPECT_EQ(CatchSummary(ComputeCatchStatistics(
                  {Day(3, 1, 3, 1, 7), Day(3, 2, 3, 2, 2), Day(3, 3, 2, 3, 4)})),
              "On V.Good days you took 4.5 fish per day fished, on Good days 4.0");
    EXPECT_EQ(CatchSummary(ComputeCatchStatistics({Day(3, 1, 1, 1, 3)})),
              "On Fair days you took 3.0 fish per day fished");
    EXPECT_EQ(CatchSummary(ComputeCatchStatistics({Day(3, 1, 4, 1, {})})),
              "No day fished yet: a day counts when Total Taken, Peak Time or Notes is filled in.");
}

TEST(CatchStatistics, TableTextHasAHeaderEveryGroupAndTheTotals)
{
    const std::string text = CatchTableText(ComputeCatchStatistics(HandBuiltYear()));
    EXPECT_EQ(
        text.rfind("Group\tDays fished\tTotal taken\tPer day fished\nRating\nBest\t3\t8\t2.67\n"
                   "V.Good\t1\t4\t4.00\nGood\t0\t0\t0.00\n",
                   0),
        0u)
        << text;
    EXPECT_NE(text.find("\nMoon phase\nNew Moon\t3\t7\t2.33\n"), std::string::npos) << text;
    EXPECT_NE(text.find("\nPeak time from the nearest period\nwithin 30 min\t2\t8\t4.00\n"),
              std::string::npos);
    EXPECT_TRUE(text.ends_with("\nAll days fished\t8\t15\t1.88\n")) << text;
    // 1 header + 5 titles + 5 ratings + 4 phases + 30 ages + 7 weekdays + 4 distances + total
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 57);
}
