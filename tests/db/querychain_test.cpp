// SPDX-License-Identifier: GPL-3.0-or-later
// The query builder's select-into chain over a filled year, with the statements exactly as
// the browser writes them: the work tables keep the log's columns, and a wrong step harms
// nothing. What the steps select is compared with plain SQL in logdb/selection_test.cpp.
#include "db/datacontrol.h"
#include "support/filledyear.h"
#include "support/logfixture.h"

#include <gtest/gtest.h>

using namespace logtest;

namespace {

const QString FirstStep = "Select table1.* into table2 from table1 where month between 1 AND 12";
const QString NextStep = "Select table3.* into table2 from table3";

} // namespace

// The work tables keep the log's columns and types; a step typed wrongly fails whole: no
// half-made Table2, and Table3 stays as it was.
TEST(QueryChain, WorkTablesKeepTheLogColumnsAndMalformedStepsFailWithoutHarm)
{
    const QString path = MakeYearFile("querychain");
    RunQueryStep(path, FirstStep);
    Database db;
    ASSERT_TRUE(db.Open(path));
    const auto columns = [&path](const QString& table) {
        return PlainColumn(path,
                           "SELECT name || ' ' || type FROM pragma_table_info('" + table + "')");
    };
    EXPECT_EQ(columns("Table2"), columns("table1"));
    EXPECT_EQ(columns("table3"), columns("table1"));
    for (const QString condition : {" where major1 between #25:00# AND #9:00 AM#",
                                    " where moonage between 1 AND", " where nosuch = 1"}) {
        ASSERT_TRUE(db.Execute("DROP TABLE [Table2];"));
        EXPECT_FALSE(db.Execute(NextStep + condition)) << condition.toStdString();
        EXPECT_TRUE(db.Columns("Table2").empty()) << condition.toStdString();
        ASSERT_TRUE(db.Execute(NextStep));
    }
    EXPECT_FALSE(db.Execute("DROP TABLE [table1]; DELETE FROM table1"));
    EXPECT_EQ(CountRows(path, "table1"), DaysInYear);
    EXPECT_EQ(CountRows(path, "table3"), DaysInYear);
}
