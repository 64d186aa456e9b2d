// SPDX-License-Identifier: GPL-3.0-or-later
// The query builder's checks and pickers, without a file: what a value box takes at both ends
// of its range, and that no typed text can change a statement. What the steps select is
// checked against plain SQL in selection_test.cpp.
#include "logdb/querybuilder.h"

#include <gtest/gtest.h>

namespace {

const std::string FirstWholeYear =
    "Select table1.* into table2 from table1 where month between 1 AND 12";

QueryForm With(int condition, std::initializer_list<std::pair<int, std::string>> values)
{
    QueryForm form;
    form.Checked[std::size_t(condition)] = true;
    for (const auto& [box, text] : values)
        form.Values[std::size_t(box)] = text;
    return form;
}

} // namespace

TEST(QueryPlan, EmptiedMonthBoxesReadAsTheYearAndACheckedBoxNeedsItsValues)
{
    EXPECT_EQ(PlanSelection(QueryForm()).Steps, std::vector<std::string>{FirstWholeYear});
    QueryForm emptied;
    emptied.Values[1].clear();
    emptied.Values[2].clear();
    EXPECT_EQ(PlanSelection(emptied).Steps, std::vector<std::string>{FirstWholeYear});
    for (const auto& form : {With(3, {{5, "4"}}), With(0, {{1, ""}}), With(5, {{0, "  "}}),
                             With(1, {{Text1Box, "7:00 AM"}})}) {
        const SelectionPlan plan = PlanSelection(form);
        EXPECT_EQ(plan.Error, "A box is checked with no data");
        EXPECT_TRUE(plan.Steps.empty());
    }
    EXPECT_TRUE(PlanSelection(With(6, {})).Ok()); // boxes without values need none
}

// Each numeric box takes the ends of its range and refuses one past either end: the months,
// the days of the week with the two weekend codes, the moon's age, the illumination as far as
// the picker goes, the daylight hours and the count taken.
TEST(QueryPlan, EveryValueBoxTakesBothEndsOfItsRangeAndNothingPast)
{
    const std::vector<std::tuple<int, int, int, int>> boxes = {
        // condition, box, lowest, highest
        {0, 1, 1, 12}, {0, 2, 1, 12},  {2, 3, 0, 9},   {2, 4, 0, 9},  {3, 5, 0, 29},
        {3, 6, 0, 29}, {4, 7, 0, 200}, {4, 8, 0, 200}, {5, 0, 0, 24}, {9, 9, 0, 9999}};
    for (const auto& [condition, box, low, high] : boxes) {
        const auto planned = [&, condition = condition, box = box](int value) {
            QueryForm form = With(condition, {});
            for (int b : QueryConditions()[std::size_t(condition)].Boxes)
                form.Values[std::size_t(b)] = "1";
            form.Values[std::size_t(box)] = std::to_string(value);
            return PlanSelection(form).Ok();
        };
        EXPECT_TRUE(planned(low)) << "box " << box;
        EXPECT_TRUE(planned(high)) << "box " << box;
        EXPECT_FALSE(planned(low - 1)) << "box " << box;
        EXPECT_FALSE(planned(high + 1)) << "box " << box;
    }
    EXPECT_EQ(PlanSelection(With(3, {{5, "1"}, {6, "30"}})).Error,
              "Moon Age, second box: \"30\" is not a whole number from 0 to 29.");
}

TEST(QueryPickers, Combo2CapsTheNumberAndReadsZeroAsOne)
{
    for (const auto& [box, chosen, written] :
         std::vector<std::tuple<int, int, std::string>>{{5, 50, "29"},
                                                        {6, 29, "29"},
                                                        {0, 20, "14"},
                                                        {0, 0, "1"},
                                                        {5, 0, "0"},
                                                        {7, 100, "100"},
                                                        {9, 0, "0"},
                                                        {1, 13, "12"},
                                                        {2, 0, "1"}})
        EXPECT_EQ(PickedNumber(box, chosen), written) << box << " " << chosen;
}

TEST(QueryPickers, DayOfWeekPairStaysARangeOrTheSameWeekend)
{
    QueryForm form;
    // The picked box and entry, then both boxes: an empty second box follows, a later one is
    // kept apart, a first past the second or a second before the first drags the other along,
    // and a weekend names the same weekend in both.
    for (const auto& [box, entry, pair] :
         std::vector<std::tuple<int, int, std::string>>{{3, 3, "33"},
                                                        {4, 6, "36"},
                                                        {3, 5, "56"},
                                                        {3, 7, "77"},
                                                        {4, 2, "22"},
                                                        {4, 8, "88"},
                                                        {3, 4, "44"}}) {
        PickDayOfWeek(form, box, entry);
        EXPECT_EQ(form.Values[3] + form.Values[4], pair) << box << " " << entry;
    }
}

// No typed text can change a statement: every value box refuses what its condition cannot
// hold, names itself, and no step is planned.
TEST(QueryInjection, ValueBoxesRefuseWhatTheirConditionCannotHold)
{
    const std::vector<std::string> worst = {"1; DROP TABLE table1",
                                            "1 --",
                                            "1' OR '1'='1",
                                            "#",
                                            "1 OR 1=1",
                                            "12:00 AM# OR #1",
                                            "7:00 PM#; DELETE FROM table1; --",
                                            "1)/*",
                                            "-1",
                                            "1e3",
                                            "0x1F",
                                            "3.5",
                                            "\xEF\xBC\x91", // a full-width digit one
                                            "1\n; DROP TABLE table3",
                                            "13:00 PM",
                                            "7:60 AM",
                                            "7:0 PM",
                                            std::string(100000, '9'),
                                            std::string(5000, '\''),
                                            "12:00 AM" + std::string(4000, ' ') + "X"};
    // A valid value for each box, so only the box under test is wrong.
    const std::array<std::string, ValueBoxCount> good = {
        "10", "1",   "12", "2",       "6",       "1",       "29",
        "0",  "100", "1",  "7:00 PM", "9:00 PM", "5:00 AM", "9:00 AM"};
    const auto& conditions = QueryConditions();
    for (int c = 0; c < ConditionCount; ++c) {
        for (int box : conditions[std::size_t(c)].Boxes) {
            for (const std::string& bad : worst) {
                QueryForm form;
                form.Checked[std::size_t(c)] = true;
                for (int b : conditions[std::size_t(c)].Boxes)
                    form.Values[std::size_t(b)] = good[std::size_t(b)];
                form.Values[std::size_t(box)] = bad;
                const SelectionPlan plan = PlanSelection(form);
                ASSERT_FALSE(plan.Ok()) << "box " << box << " with " << bad.substr(0, 40);
                EXPECT_TRUE(plan.Steps.empty());
                EXPECT_EQ(plan.Error.rfind(std::string(conditions[std::size_t(c)].Caption), 0), 0u)
                    << plan.Error;
            }
        }
    }
    // The month boxes reach the first step even when their condition is not checked.
    QueryForm months;
    months.Values[2] = "12; DROP TABLE table1";
    EXPECT_FALSE(PlanSelection(months).Ok());
}
