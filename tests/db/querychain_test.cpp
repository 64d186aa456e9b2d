// SPDX-License-Identifier: GPL-3.0-or-later
// The query builder's select-into chain over a filled year, with the statements exactly as
// the browser writes them: the work tables keep the log's columns, and a wrong step harms
// nothing. What the steps select is compared with plain SQL in logdb/selection_test.cpp.
#include "db/datacontrol.h"
#include "support/logfixture.h"

#include <gtest/gtest.h>

using namespace logtest;

namespace {

const QString FirstStep = "Select table1.* into table2 from table1 where month between 1 AND 12";
const QString NextStep = "Select table3.* into table2 from table3";

class QueryChain : public ::testing::Test {
protected:
    void SetUp() override { path_ = MakeYearFile("querychain"); }

    QString path_;
};

} // namespace

// The work tables keep the log's columns and types; a step typed wrongly fails whole: no
// half-made Table2, and Table3 stays as it was.
TEST_F(QueryChain, WorkTablesKeepTheLogColumnsAndMalformedStepsFailWithoutHarm)
{
    RunQueryStep(path_, FirstStep);
    Database db;
    ASSERT_TRUE(db.Open(path_));
    const auto log = db.Columns("table1");
    for (const QString table : {"Table2", "table3"}) {
        const auto work = db.Columns(table);
        ASSERT_EQ(work.size(), log.size()) << table.toStdString();
        for (std::size_t i = 0; i < log.size(); ++i)
            EXPECT_EQ(work[i].Name + work[i].DeclaredType, log[i].Name + log[i].DeclaredType);
    }
    for (const QString condition : {" where major1 between #25:00# AND #9:00 AM#",
                                    " where moonage between 1 AND", " where nosuch = 1"}) {
        ASSERT_TRUE(db.Execute("DROP TABLE [Table2];"));
        EXPECT_FALSE(db.Execute(NextStep + condition)) << condition.toStdString();
        EXPECT_TRUE(db.Columns("Table2").empty()) << condition.toStdString();
        ASSERT_TRUE(db.Execute(NextStep));
    }
    EXPECT_FALSE(db.Execute("DROP TABLE [table1]; DELETE FROM table1"));
    EXPECT_EQ(CountRows(path_, "table1"), DaysInYear);
    EXPECT_EQ(CountRows(path_, "table3"), DaysInYear);
}
