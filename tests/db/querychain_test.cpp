// SPDX-License-Identifier: GPL-3.0-or-later
// The query builder's select-into chain over a filled year, with the statements exactly as
// the browser writes them.
#include "db/datacontrol.h"
#include "support/logfixture.h"

#include <gtest/gtest.h>

#include <functional>

using namespace logtest;

namespace {

const QString FirstStep = "Select table1.* into table2 from table1 where month between %1 AND %2";
const QString NextStep = "Select table3.* into table2 from table3";

class QueryChain : public ::testing::Test {
protected:
    void SetUp() override { path_ = MakeYearFile("querychain"); }

    void Start(int fromMonth = 1, int toMonth = 12)
    {
        RunQueryStep(path_, FirstStep.arg(fromMonth).arg(toMonth));
    }
    void Step(const QString& condition) { RunQueryStep(path_, NextStep + condition); }

    // The DBIDs of Table3 in the given order.
    std::vector<int> Result(const QString& order = "select * from table3 order by juliandate")
    {
        return RecordIds(path_, order);
    }

    static std::vector<int> DaysWhere(const std::function<bool(const Day&)>& keep)
    {
        std::vector<int> ids;
        for (int n = 1; n <= DaysInYear; ++n) {
            if (keep(DayOf(n)))
                ids.push_back(n);
        }
        return ids;
    }

    QString path_;
};

} // namespace

TEST_F(QueryChain, NothingCheckedCopiesTheWholeYearInDateOrder)
{
    Start();
    EXPECT_EQ(Result(), DaysWhere([](const Day&) { return true; }));

    Start(3, 3);
    EXPECT_EQ(Result(), DaysWhere([](const Day& d) { return d.Month == 3; }));
}

TEST_F(QueryChain, WorkTablesKeepTheLogColumnsAndTypes)
{
    Start();
    Database db;
    ASSERT_TRUE(db.Open(path_));
    const auto log = db.Columns("table1");
    for (const QString table : {"Table2", "table3"}) {
        const auto work = db.Columns(table);
        ASSERT_EQ(work.size(), log.size()) << table.toStdString();
        for (std::size_t i = 0; i < log.size(); ++i) {
            EXPECT_EQ(work[i].Name, log[i].Name);
            EXPECT_EQ(work[i].DeclaredType, log[i].DeclaredType);
        }
    }
}

TEST_F(QueryChain, Major1BetweenClockLiteralsComparesTimes)
{
    Start();
    Step(" where major1 between #7:00 AM# AND #1:30 PM#");
    EXPECT_EQ(Result(), DaysWhere([](const Day& d) {
                  return d.Major1Minute >= 7 * 60 && d.Major1Minute <= 13 * 60 + 30;
              }));

    // "12:00 AM" to "12:00 PM" is midnight to noon.
    Start();
    Step(" where major1 between #12:00 AM# AND #12:00 PM#");
    EXPECT_EQ(Result(), DaysWhere([](const Day& d) { return d.Major1Minute <= 720; }));
}

TEST_F(QueryChain, EitherMajorBetween)
{
    Start();
    Step(" where major1 between #3:00 PM# AND #5:00 PM# or major2 between #3:00 PM# AND #5:00 PM#");
    EXPECT_EQ(Result(), DaysWhere([](const Day& d) {
                  const int major2 = (d.Major1Minute + 720) % 1440;
                  return (d.Major1Minute >= 900 && d.Major1Minute <= 1020) ||
                         (major2 >= 900 && major2 <= 1020);
              }));
}

TEST_F(QueryChain, StepsNarrowOneAnother)
{
    Start(4, 9);
    Step(" where DayofWeek_ = 7 or dayofweek_ = 1");
    Step(" where waxing = 1");
    EXPECT_EQ(Result(), DaysWhere([](const Day& d) {
                  return d.Month >= 4 && d.Month <= 9 && (d.Weekday == 7 || d.Weekday == 1) &&
                         d.Waxing == 1;
              }));

    Start();
    Step(" where DayofWeek_ between 2 And 4");
    Step(" where graphictype > 0");
    EXPECT_EQ(Result(), DaysWhere([](const Day& d) {
                  return d.Weekday >= 2 && d.Weekday <= 4 && d.Rating > 0;
              }));

    // Best and then Very Good leaves nothing.
    Start();
    Step(" where graphictype = 4");
    Step(" where graphictype = 3");
    EXPECT_TRUE(Result().empty());
}

TEST_F(QueryChain, OrderByMajor1FollowsTheClock)
{
    Start(1, 2);
    const std::vector<int> ids = Result("Select * from table3 order by major1,juliandate");
    ASSERT_EQ(ids.size(), 60u);
    for (std::size_t i = 1; i < ids.size(); ++i) {
        const Day a = DayOf(ids[i - 1]), b = DayOf(ids[i]);
        EXPECT_TRUE(a.Major1Minute < b.Major1Minute ||
                    (a.Major1Minute == b.Major1Minute && a.Number < b.Number))
            << "day " << a.Number << " before day " << b.Number;
    }
}

TEST_F(QueryChain, MalformedStepsFailWithoutHarm)
{
    Start();
    Database db;
    ASSERT_TRUE(db.Open(path_));
    // A step typed wrongly fails whole: no half-made Table2, and Table3 stays as it was.
    for (const QString condition : {" where major1 between #25:00# AND #9:00 AM#",
                                    " where moonage between 1 AND", " where nosuch = 1"}) {
        ASSERT_TRUE(db.Execute("DROP TABLE [Table2];"));
        EXPECT_FALSE(db.Execute(NextStep + condition)) << condition.toStdString();
        EXPECT_TRUE(db.Columns("Table2").empty()) << condition.toStdString();
        ASSERT_TRUE(db.Execute("select table3.* into table2 from table3"));
    }
    EXPECT_FALSE(db.Execute("DROP TABLE [table1]; DELETE FROM table1"));
    EXPECT_EQ(CountRows(path_, "table1"), DaysInYear);
    EXPECT_EQ(CountRows(path_, "table3"), DaysInYear);
}
