// SPDX-License-Identifier: GPL-3.0-or-later
// The query builder's checks and pickers, without a file: that no typed text can change a
// statement. What the steps select is checked against plain SQL in selection_test.cpp, each
// box's range through the window (tests/ui/log) and the command line (tests/cli/log).
#include "logdb/querybuilder.h"
#include "support/testenv.h"

#include <gtest/gtest.h>

// Emptied month boxes read as the whole year (a checked box without its value is refused
// through the window, tests/ui/log).
TEST(QueryPlan, EmptiedMonthBoxesReadAsTheYear)
{
    QueryForm emptied;
    emptied.Values[1].clear();
    emptied.Values[2].clear();
    EXPECT_EQ(PlanSelection(emptied).Steps,
              std::vector<std::string>{
                  "Select table1.* into table2 from table1 where month between 1 AND 12"});
    emptied.Checked[6] = true; // a box without values needs none
    EXPECT_TRUE(PlanSelection(emptied).Ok());
}

TEST(QueryPickers, DayOfWeekPairStaysARangeOrTheSameWeekend)
{
    QueryForm form;
    // The picked box and entry, then both boxes: an empty second box follows, a later one is
    // kept apart, a first past the second or a second before the first drags the other along,
    // and a weekend names the same weekend in both.
    constexpr int picks[][3] = {{3, 3, 33}, {4, 6, 36}, {3, 5, 56}, {3, 7, 77},
                                {4, 2, 22}, {4, 8, 88}, {3, 4, 44}};
    for (const auto& [box, entry, pair] : picks) {
        PickDayOfWeek(form, box, entry);
        EXPECT_EQ(form.Values[3] + form.Values[4], std::to_string(pair)) << box << " " << entry;
    }
}

// No typed text can change a statement: every value box refuses what its condition cannot
// hold, names itself, and no step is planned.
TEST(QueryInjection, ValueBoxesRefuseWhatTheirConditionCannotHold)
{
    std::vector<std::string> worst = {"#", "1\n; DROP TABLE table3", std::string(100000, '9'),
                                      std::string(5000, '\''),
                                      "12:00 AM" + std::string(4000, ' ') + "X"};
    for (const QStringList& row : testenv::DataRows(QUILLMERE_TESTDATA "/refused_values.txt"))
        worst.push_back(row.join('|').toStdString());
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
