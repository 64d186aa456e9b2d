// SPDX-License-Identifier: GPL-3.0-or-later
// "Select Data Where" on a real year of forecasts, checked against the same questions asked
// of the file in plain SQLite. Refused values are checked without a file (querybuilder_test).
#include "db/datacontrol.h"
#include "logdb/queryrun.h"
#include "support/filledyear.h"
#include "support/logfixture.h"
#include "support/testenv.h"

#include <QTime>

#include <gtest/gtest.h>

#include <map>

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

    static QString* Path;
};
QString* Selecting::Path = nullptr;

} // namespace

// Each condition, and each range with both of its ends at values the file holds, against the
// same question asked in plain SQL (data/selection_cases.txt).
TEST_F(Selecting, EachConditionAndBothEndsOfEachRangeAgreeWithPlainSql)
{
    std::map<QString, std::pair<QString, QString>> held; // token: as typed, in SQL
    for (const auto& [token, column, offset] :
         {std::tuple{"$early", "Major1", 60}, std::tuple{"$late", "Major1", 200},
          std::tuple{"$evening", "Major2", 250}, std::tuple{"$night", "Major2", 300}}) {
        const QString stored =
            PlainColumn(*Path, QString("SELECT %1 FROM table1 WHERE %1 LIKE '%:00' ORDER BY %1 "
                                       "LIMIT 1 OFFSET %2")
                                   .arg(column)
                                   .arg(offset))
                .at(0)
                .toString();
        held[token] = {QTime::fromString(stored, "HH:mm:ss").toString("h:mm AP"),
                       "'" + stored + "'"};
    }
    const auto illum = PlainRows(*Path, "SELECT min(IllumPercent), max(IllumPercent) FROM table1 "
                                        "WHERE DBID IN (40, 45)")
                           .at(0);
    held["$dim"] = {illum[0].toString(), illum[0].toString()};
    held["$bright"] = {illum[1].toString(), illum[1].toString()};
    const auto with = [&held](QString text, bool typed) {
        for (const auto& [token, value] : held)
            text.replace(token, typed ? value.first : value.second);
        return text;
    };
    for (const QStringList& row : testenv::DataRows(QUILLMERE_TESTDATA "/selection_cases.txt")) {
        QueryForm form;
        for (const QString& c : row[0].split(' ', Qt::SkipEmptyParts))
            form.Checked[c.toUInt()] = true;
        for (const QString& v : row[1].split(';', Qt::SkipEmptyParts))
            form.Values[v.section('=', 0, 0).trimmed().toUInt()] =
                with(v.section('=', 1).trimmed(), true).toStdString();
        const QString where = with(row[2], false), ends = with(row[3], false);
        EXPECT_EQ(Select(form), Plain(where)) << where.toStdString();
        EXPECT_TRUE(ends.isEmpty() || !Plain("(" + where + ") AND " + ends).empty())
            << where.toStdString();
    }
}

// Each order: nulls first, then by value, ties by date.
TEST_F(Selecting, EachOrderAgreesWithPlainSql)
{
    const QStringList keys = {"JulianDate", "Major1", "DayOfWeek_", "GraphicType", "TotalTaken"};
    QueryForm months;
    months.Checked[0] = true;
    months.Values[1] = "4";
    months.Values[2] = "6";
    for (int sort = 1; sort <= keys.size(); ++sort) {
        EXPECT_EQ(Select(months, sort),
                  PlainIds(*Path, "SELECT DBID FROM table1 WHERE Month BETWEEN 4 AND 6 ORDER BY " +
                                      keys[sort - 1] + ", JulianDate"))
            << "order " << sort;
    }
}
