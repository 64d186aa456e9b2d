// SPDX-License-Identifier: GPL-3.0-or-later
// "Select Data Where" on a real year of forecasts, checked against the same questions asked
// of the file in plain SQLite and against orders sorted here.
#include "db/datacontrol.h"
#include "logdb/queryrun.h"
#include "support/filledyear.h"
#include "support/logfixture.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace logtest;

namespace {

class Selecting : public ::testing::Test {
protected:
    static void SetUpTestSuite() { Path = new QString(MakeFilledYearFile("selecting")); }
    static void TearDownTestSuite() { delete Path; }

    // Runs the selection and returns the DBIDs of its record source, in its order.
    static std::vector<int> Select(const QueryForm& form, int sortIndex = 1,
                                   QString* caption = nullptr)
    {
        const Selection s = SelectDataWhere(*Path, form, sortIndex);
        EXPECT_TRUE(s.Error.isEmpty()) << s.Error.toStdString();
        EXPECT_TRUE(s.Refused.isEmpty()) << s.Refused.join('|').toStdString();
        if (caption)
            *caption = s.Caption;
        return RecordIds(*Path, s.RecordSource);
    }

    static std::vector<int> Plain(const QString& where)
    {
        return PlainIds(*Path, "SELECT DBID FROM table1 WHERE " + where + " ORDER BY JulianDate");
    }

    static QueryForm Form(std::initializer_list<int> checked,
                          std::initializer_list<std::pair<int, std::string>> values = {})
    {
        QueryForm form;
        for (int c : checked)
            form.Checked[std::size_t(c)] = true;
        for (const auto& [box, text] : values)
            form.Values[std::size_t(box)] = text;
        return form;
    }

    static QString* Path;
};
QString* Selecting::Path = nullptr;

} // namespace

TEST_F(Selecting, NothingCheckedGivesTheWholeYearSortedByDate)
{
    QString caption;
    const std::vector<int> all = Select(QueryForm(), 1, &caption);
    EXPECT_EQ(all.size(), 366u);
    EXPECT_EQ(all, Plain("1"));
    EXPECT_EQ(caption, "Sorted by Date");
}

TEST_F(Selecting, BestAndVeryGoodTogetherGiveNone)
{
    const std::vector<int> best = Select(Form({6}));
    EXPECT_FALSE(best.empty());
    EXPECT_EQ(best, Plain("GraphicType = 4"));
    EXPECT_EQ(Select(Form({7})), Plain("GraphicType = 3"));
    EXPECT_TRUE(Select(Form({6, 7})).empty());
}

TEST_F(Selecting, WeekendCodesAndZeroInTheDayOfWeekBox)
{
    const std::vector<int> satSun = Plain("DayOfWeek_ IN (1, 7)");
    EXPECT_EQ(satSun.size(), 104u);
    for (const std::string second : {"1", "5", "9"})
        EXPECT_EQ(Select(Form({2}, {{3, "8"}, {4, second}})), satSun) << second;
    EXPECT_EQ(Select(Form({2}, {{3, "9"}, {4, "2"}})), Plain("DayOfWeek_ IN (1, 6, 7)"));
    EXPECT_EQ(Select(Form({2}, {{3, "0"}, {4, "3"}})).size(), 366u);
    EXPECT_EQ(Select(Form({2}, {{3, "2"}, {4, "4"}})), Plain("DayOfWeek_ BETWEEN 2 AND 4"));
}

TEST_F(Selecting, Major1BetweenNoonAndMidnight)
{
    EXPECT_EQ(Select(Form({1}, {{Text1Box, "12:00 PM"}, {Text2Box, "12:00 PM"}})).size(), 366u);
    const std::vector<int> morning =
        Select(Form({1}, {{Text1Box, "12:00 AM"}, {Text2Box, "12:00 PM"}}));
    EXPECT_EQ(morning, Plain("Major1 BETWEEN '00:00:00' AND '12:00:00'"));
    EXPECT_GT(morning.size(), 100u);
    EXPECT_LT(morning.size(), 266u);
}

TEST_F(Selecting, CombinedConditionsAgreeWithPlainSql)
{
    // Best days of spring on a weekend with the moon waxing.
    EXPECT_EQ(Select(Form({0, 6, 2, 10}, {{1, "3"}, {2, "5"}, {3, "8"}, {4, "1"}})),
              Plain("Month BETWEEN 3 AND 5 AND GraphicType = 4 AND DayOfWeek_ IN (1, 7) AND "
                    "Waxing = 1"));
    // Days with a major in the evening on which something was taken.
    const std::vector<int> evening =
        Select(Form({8, 9}, {{10, "5:00 PM"}, {11, "9:00 PM"}, {9, "2"}}));
    EXPECT_FALSE(evening.empty());
    EXPECT_EQ(evening, Plain("(Major1 BETWEEN '17:00:00' AND '21:00:00' OR Major2 BETWEEN "
                             "'17:00:00' AND '21:00:00') AND TotalTaken >= 2"));
    // Five conditions at once.
    EXPECT_EQ(
        Select(Form({0, 3, 4, 5, 13},
                    {{1, "4"}, {2, "9"}, {5, "3"}, {6, "20"}, {7, "10"}, {8, "90"}, {0, "13"}})),
        Plain("Month BETWEEN 4 AND 9 AND MoonAge BETWEEN 3 AND 20 AND IllumPercent BETWEEN "
              "10 AND 90 AND DaylightHours >= 13 AND GraphicType > 0"));
    EXPECT_EQ(Select(Form({12, 11})), Plain("Perigee = 1 AND Waxing = 0"));
}

TEST_F(Selecting, EachOrderAgreesWithASortOfTheSameRows)
{
    struct Row {
        int Id;
        QVariant Date, Major1, Weekday, Rating, Taken;
    };
    std::vector<Row> rows;
    for (const auto& r : PlainRows(*Path, "SELECT DBID, JulianDate, Major1, DayOfWeek_, "
                                          "GraphicType, TotalTaken FROM table1 WHERE Month "
                                          "BETWEEN 4 AND 6"))
        rows.push_back({r[0].toInt(), r[1], r[2], r[3], r[4], r[5]});
    ASSERT_EQ(rows.size(), 91u);
    // Nulls first, then by value; ties by date.
    const auto less = [](const QVariant& a, const QVariant& b) {
        if (a.isNull() || b.isNull())
            return a.isNull() && !b.isNull();
        return a.typeId() == QMetaType::QString ? a.toString() < b.toString()
                                                : a.toDouble() < b.toDouble();
    };
    const std::array<QVariant Row::*, 5> keys = {&Row::Date, &Row::Major1, &Row::Weekday,
                                                 &Row::Rating, &Row::Taken};
    for (int sort = 1; sort <= 5; ++sort) {
        std::vector<Row> sorted = rows;
        const auto key = keys[std::size_t(sort - 1)];
        std::sort(sorted.begin(), sorted.end(), [&](const Row& a, const Row& b) {
            if (less(a.*key, b.*key) || less(b.*key, a.*key))
                return less(a.*key, b.*key);
            return a.Date.toString() < b.Date.toString();
        });
        std::vector<int> expected;
        for (const Row& r : sorted)
            expected.push_back(r.Id);
        EXPECT_EQ(Select(Form({0}, {{1, "4"}, {2, "6"}}), sort), expected) << "order " << sort;
    }
}

TEST_F(Selecting, RefusedValuesLeaveTheLogAndTheLastResultAlone)
{
    const std::vector<int> before = Select(Form({6}));
    for (const std::string bad : {"1; DROP TABLE table1", "1 OR 1=1", "29--"}) {
        const Selection s = SelectDataWhere(*Path, Form({3}, {{5, "1"}, {6, bad}}), 1);
        EXPECT_EQ(s.Error, QString("Moon Age, second box: \"%1\" is not a whole number from 0 "
                                   "to 29.")
                               .arg(QString::fromStdString(bad)));
        EXPECT_TRUE(s.RecordSource.isEmpty());
    }
    const Selection clock = SelectDataWhere(
        *Path, Form({8}, {{10, "12:00 AM# or 1=1 or #1:00 AM"}, {11, "1:00 AM"}}), 1);
    EXPECT_TRUE(clock.Error.startsWith("Either Major Between, first box: "))
        << clock.Error.toStdString();
    EXPECT_EQ(CountRows(*Path, "table1"), 366);
    EXPECT_EQ(RecordIds(*Path, "select * from table3 order by juliandate"), before);
}
