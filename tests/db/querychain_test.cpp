// SPDX-License-Identifier: GPL-3.0-or-later
// The query builder's select-into chain over a filled year, with the statements exactly as
// the browser writes them: the work tables keep the log's columns, and a wrong step harms
// nothing. What the steps select is compared with plain SQL in logdb/selection_test.cpp.
#include "db/datacontrol.h"
#include "support/logfixture.h"

#include <gtest/gtest.h>

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

    QString path_;
};

} // namespace

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
