// SPDX-License-Identifier: GPL-3.0-or-later
// "Select Data Where" on a real year of forecasts, checked against the same questions asked
// of the file in plain SQLite. Refused values are checked without a file (querybuilder_test).
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
    static std::vector<int> Select(const QueryForm& form, int sortIndex = 1)
    {
        const Selection s = SelectDataWhere(*Path, form, sortIndex);
        EXPECT_TRUE(s.Error.isEmpty()) << s.Error.toStdString();
        EXPECT_TRUE(s.Refused.isEmpty()) << s.Refused.join('|').toStdString();
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
        {QueryForm(), "1", "1"},
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

// Each order: nulls first, then by value, ties by date.
TEST_F(Selecting, EachOrderAgreesWithPlainSql)
{
    const QStringList keys = {"JulianDate", "Major1", "DayOfWeek_", "GraphicType", "TotalTaken"};
    for (int sort = 1; sort <= keys.size(); ++sort) {
        EXPECT_EQ(Select(Form({0}, {{1, "4"}, {2, "6"}}), sort),
                  PlainIds(*Path, "SELECT DBID FROM table1 WHERE Month BETWEEN 4 AND 6 ORDER BY " +
                                      keys[sort - 1] + ", JulianDate"))
            << "order " << sort;
    }
}
