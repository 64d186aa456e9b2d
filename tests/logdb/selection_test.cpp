// SPDX-License-Identifier: GPL-3.0-or-later
// "Select Data Where" on a real year of forecasts, checked against the same questions asked
// of the file in plain SQLite and against orders sorted here.
#include "db/datacontrol.h"
#include "logdb/queryrun.h"
#include "support/filledyear.h"
#include "support/logfixture.h"

#include <QTime>

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
    EXPECT_EQ(Select(QueryForm(), 1, &caption), Plain("1"));
    EXPECT_EQ(caption, "Sorted by Date");
}

// Each condition, and each range with both of its ends at values the file holds, against the
// same question asked in plain SQL.
TEST_F(Selecting, EachConditionAndBothEndsOfEachRangeAgreeWithPlainSql)
{
    // Stored majors on whole minutes, as a clock box is typed ("7:05 PM"), and stored.
    const auto majors = [](const char* column, int offset) {
        const QString stored =
            PlainColumn(*Path, QString("SELECT %1 FROM table1 WHERE %1 LIKE '%:00' ORDER BY %1 "
                                       "LIMIT 1 OFFSET %2")
                                   .arg(column)
                                   .arg(offset))
                .at(0)
                .toString();
        return std::pair{QTime::fromString(stored, "HH:mm:ss").toString("h:mm AP").toStdString(),
                         "'" + stored + "'"};
    };
    const auto [early, earlyStored] = majors("Major1", 60);
    const auto [late, lateStored] = majors("Major1", 200);
    const auto [evening, eveningStored] = majors("Major2", 250);
    const auto [night, nightStored] = majors("Major2", 300);
    const auto illum = [](int dbid) {
        return PlainColumn(*Path,
                           QString("SELECT IllumPercent FROM table1 WHERE DBID = %1").arg(dbid))
            .at(0)
            .toString();
    };
    const QString dim = illum(40), bright = illum(45);
    const QString dimToBright = std::min(dim.toInt(), bright.toInt()) == dim.toInt()
                                    ? dim + " AND " + bright
                                    : bright + " AND " + dim;
    const std::vector<std::tuple<QueryForm, QString, QString>> cases = {
        // the form; the days in plain SQL; days at the range's ends that must be among them
        // (and for other conditions any at all)
        {Form({0}, {{1, "3"}, {2, "5"}}), "Month BETWEEN 3 AND 5", "Month IN (3, 5)"},
        {Form({1}, {{Text1Box, early}, {Text2Box, late}}),
         "Major1 BETWEEN " + earlyStored + " AND " + lateStored,
         "Major1 IN (" + earlyStored + ", " + lateStored + ")"},
        {Form({1}, {{Text1Box, "12:00 AM"}, {Text2Box, "12:00 PM"}}),
         "Major1 BETWEEN '00:00:00' AND '12:00:00'", "1"},
        {Form({1}, {{Text1Box, "12:00 PM"}, {Text2Box, "12:00 PM"}}), "1", "1"},
        {Form({2}, {{3, "2"}, {4, "4"}}), "DayOfWeek_ BETWEEN 2 AND 4", "DayOfWeek_ IN (2, 4)"},
        {Form({2}, {{3, "8"}, {4, "5"}}), "DayOfWeek_ IN (1, 7)", "1"},
        {Form({2}, {{3, "9"}, {4, "2"}}), "DayOfWeek_ IN (1, 6, 7)", "1"},
        {Form({2}, {{3, "0"}, {4, "3"}}), "1", "1"},
        {Form({3}, {{5, "3"}, {6, "20"}}), "MoonAge BETWEEN 3 AND 20", "MoonAge IN (3, 20)"},
        {Form({3}, {{5, "0"}, {6, "29"}}), "MoonAge BETWEEN 0 AND 29", "MoonAge IN (0, 29)"},
        {Form({4}, {{7, dimToBright.section(' ', 0, 0).toStdString()},
                    {8, dimToBright.section(' ', 2, 2).toStdString()}}),
         "IllumPercent BETWEEN " + dimToBright, "IllumPercent IN (" + dim + ", " + bright + ")"},
        {Form({5}, {{0, "13"}}), "DaylightHours >= 13", "1"},
        {Form({6}), "GraphicType = 4", "1"},
        {Form({7}), "GraphicType = 3", "1"},
        {Form({6, 7}), "0", ""}, // best and very good: none
        {Form({8}, {{10, evening}, {11, night}}),
         "Major1 BETWEEN " + eveningStored + " AND " + nightStored + " OR Major2 BETWEEN " +
             eveningStored + " AND " + nightStored,
         "Major2 IN (" + eveningStored + ", " + nightStored + ")"},
        {Form({9}, {{9, "3"}}), "TotalTaken >= 3", "TotalTaken = 3"},
        {Form({10, 12}), "Waxing = 1 AND Perigee = 1", "1"},
        {Form({11, 13}), "Waxing = 0 AND GraphicType > 0", "1"},
        {Form({0, 6, 2, 10}, {{1, "3"}, {2, "5"}, {3, "8"}, {4, "1"}}),
         "Month BETWEEN 3 AND 5 AND GraphicType = 4 AND DayOfWeek_ IN (1, 7) AND Waxing = 1", "1"},
    };
    for (const auto& [form, where, ends] : cases) {
        const std::vector<int> expected = Plain(where);
        EXPECT_EQ(Select(form), expected) << where.toStdString();
        EXPECT_TRUE(ends.isEmpty() || !Plain("(" + where + ") AND " + ends).empty())
            << where.toStdString();
    }
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
