// SPDX-License-Identifier: GPL-3.0-or-later
// The query builder's statements, pickers and value checks, without a file.
#include "logdb/querybuilder.h"

#include <gtest/gtest.h>

namespace {

const std::string FirstWholeYear =
    "Select table1.* into table2 from table1 where month between 1 AND 12";
const std::string Work = "Select table3.* into table2 from table3";

QueryForm With(int condition, std::initializer_list<std::pair<int, std::string>> values)
{
    QueryForm form;
    form.Checked[std::size_t(condition)] = true;
    for (const auto& [box, text] : values)
        form.Values[std::size_t(box)] = text;
    return form;
}

} // namespace

TEST(QueryPlan, NothingCheckedIsOneStepOverTheMonths)
{
    EXPECT_EQ(PlanSelection(QueryForm()).Steps, std::vector<std::string>{FirstWholeYear});

    // Month boxes emptied by the Months menu read as the whole year; typed ones are used.
    QueryForm emptied;
    emptied.Values[1].clear();
    emptied.Values[2].clear();
    EXPECT_EQ(PlanSelection(emptied).Steps, std::vector<std::string>{FirstWholeYear});
    const auto spring = PlanSelection(With(0, {{1, " 3"}, {2, "05"}}));
    EXPECT_EQ(spring.Steps,
              std::vector<std::string>{
                  "Select table1.* into table2 from table1 where month between 3 AND 5"});
}

TEST(QueryPlan, ACheckedBoxWithoutItsValuesStopsEverything)
{
    for (const auto& form : {With(3, {{5, "4"}}), With(0, {{1, ""}}), With(5, {{0, "  "}}),
                             With(1, {{Text1Box, "7:00 AM"}})}) {
        const SelectionPlan plan = PlanSelection(form);
        EXPECT_EQ(plan.Error, "A box is checked with no data");
        EXPECT_TRUE(plan.Steps.empty());
    }
    // Boxes without values need none.
    EXPECT_TRUE(PlanSelection(With(6, {})).Ok());
}

TEST(QueryPlan, EachConditionAddsItsStepInBoxOrder)
{
    QueryForm form;
    form.Checked = {true, true, true, true, true, true, true,
                    true, true, true, true, true, true, true};
    form.Values = {"12", "4",  "6", "2",       "6",        "1",       "29",
                   "10", "90", "3", "7:00 PM", "11:00 PM", "5:00 AM", "9:00 AM"};
    const std::vector<std::string> expected = {
        "Select table1.* into table2 from table1 where month between 4 AND 6",
        Work + " where major1 between #5:00 AM# AND #9:00 AM#",
        Work + " where DayofWeek_ between 2 And 6",
        Work + " where moonage between 1 AND 29",
        Work + " where illumpercent between 10 AND 90",
        Work + " where daylighthours >= 12",
        Work + " where graphictype = 4",
        Work + " where graphictype = 3",
        Work + " where major1 between #7:00 PM# AND #11:00 PM# or major2 between #7:00 PM# AND "
               "#11:00 PM#",
        Work + " where totaltaken >= 3",
        Work + " where waxing = 1",
        Work + " where waxing = 0",
        Work + " where perigee = 1",
        Work + " where graphictype > 0"};
    EXPECT_EQ(PlanSelection(form).Steps, expected);
}

TEST(QueryPlan, DaysOfWeekWeekendsAndZero)
{
    // 8 and 9 are the weekends whatever the second box holds; 0 and other values add no step.
    for (const std::string second : {"3", "9", "x'; --"}) {
        EXPECT_EQ(PlanSelection(With(2, {{3, "8"}, {4, second}})).Steps.at(1),
                  Work + " where DayofWeek_ = 7 or dayofweek_ = 1");
        EXPECT_EQ(PlanSelection(With(2, {{3, "9"}, {4, second}})).Steps.at(1),
                  Work + " where DayofWeek_ = 6 or dayofweek_ = 7 or dayofweek_ = 1");
    }
    EXPECT_EQ(PlanSelection(With(2, {{3, "0"}, {4, "5"}})).Steps,
              std::vector<std::string>{FirstWholeYear});
}

TEST(QueryPlan, NoonOrMidnightAtBothEndsSelectsEverything)
{
    EXPECT_EQ(PlanSelection(With(1, {{Text1Box, "12:00 PM"}, {Text2Box, "12:00 PM"}})).Steps.at(1),
              Work);
    EXPECT_EQ(PlanSelection(With(1, {{Text1Box, "12:00 am"}, {Text2Box, " 12:00 AM"}})).Steps.at(1),
              Work);
    EXPECT_EQ(PlanSelection(With(1, {{Text1Box, "12:00 AM"}, {Text2Box, "12:00 PM"}})).Steps.at(1),
              Work + " where major1 between #12:00 AM# AND #12:00 PM#");
    // Typed clock times are written in the list's form.
    EXPECT_EQ(PlanSelection(With(1, {{Text1Box, "07:30pm"}, {Text2Box, "9:05 AM"}})).Steps.at(1),
              Work + " where major1 between #7:30 PM# AND #9:05 AM#");
}

TEST(QueryPickers, Combo2CapsTheNumberAndReadsZeroAsOne)
{
    EXPECT_EQ(PickedNumber(5, 50), "29"); // moon age
    EXPECT_EQ(PickedNumber(6, 29), "29");
    EXPECT_EQ(PickedNumber(0, 20), "14"); // daylight hours
    EXPECT_EQ(PickedNumber(0, 0), "1");
    EXPECT_EQ(PickedNumber(5, 0), "0"); // boxes after the fifth keep 0
    EXPECT_EQ(PickedNumber(7, 100), "100");
    EXPECT_EQ(PickedNumber(9, 0), "0");
    EXPECT_EQ(PickedNumber(1, 13), "12");
    EXPECT_EQ(PickedNumber(2, 0), "1");
}

TEST(QueryPickers, DayOfWeekPairStaysARangeOrTheSameWeekend)
{
    QueryForm form;
    PickDayOfWeek(form, 3, 3); // empty second box follows
    EXPECT_EQ(form.Values[3] + form.Values[4], "33");
    PickDayOfWeek(form, 4, 6); // a later second box is kept apart
    EXPECT_EQ(form.Values[3] + form.Values[4], "36");
    PickDayOfWeek(form, 3, 5); // still before the second
    EXPECT_EQ(form.Values[3] + form.Values[4], "56");
    PickDayOfWeek(form, 3, 7); // past the second: the second follows
    EXPECT_EQ(form.Values[3] + form.Values[4], "77");
    PickDayOfWeek(form, 4, 2); // second before the first: the first follows
    EXPECT_EQ(form.Values[3] + form.Values[4], "22");
    PickDayOfWeek(form, 4, 8); // a weekend names the same weekend in both
    EXPECT_EQ(form.Values[3] + form.Values[4], "88");
    PickDayOfWeek(form, 3, 4); // leaving a weekend
    EXPECT_EQ(form.Values[3] + form.Values[4], "44");
}

// No typed text can change a statement: every value box refuses what its condition cannot
// hold, names itself, and no step is planned.
TEST(QueryInjection, ValueBoxesRefuseWhatTheirConditionCannotHold)
{
    const std::vector<std::string> worst = {
        "1; DROP TABLE table1",
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
        "12:00 AM" + std::string(4000, ' ') + "X",
    };
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
                const std::string where = "box " + std::to_string(box) + " of condition " +
                                          std::to_string(c) + " with " + bad.substr(0, 40);
                ASSERT_FALSE(plan.Ok()) << where;
                EXPECT_TRUE(plan.Steps.empty()) << where;
                EXPECT_EQ(plan.Error.rfind(std::string(conditions[std::size_t(c)].Caption), 0), 0u)
                    << plan.Error;
            }
        }
    }
    // Out of range is refused too, with the range in the message.
    const SelectionPlan age = PlanSelection(With(3, {{5, "1"}, {6, "30"}}));
    EXPECT_EQ(age.Error, "Moon Age, second box: \"30\" is not a whole number from 0 to 29.");
    // The month boxes reach the first step even when their condition is not checked.
    QueryForm months;
    months.Values[2] = "12; DROP TABLE table1";
    EXPECT_FALSE(PlanSelection(months).Ok());
}
