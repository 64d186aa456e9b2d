// SPDX-License-Identifier: GPL-3.0-or-later
#include "db/jetsql.h"

#include <gtest/gtest.h>

namespace {

JetStatement Translate(std::string_view sql)
{
    return TranslateJet(sql, [](std::string_view table) {
        return SameName(table, "table3")
                   ? std::vector<JetColumn>{{"DBID", "INTEGER", true}, {"Major1", "TIME", false}}
                   : std::vector<JetColumn>{};
    });
}

} // namespace

TEST(JetSql, SelectIntoKeepsTheSourceColumnsWhenTheWholeRowIsCopied)
{
    const JetStatement copy = Translate(
        "Select table3.* into table2 from table3 where major1 between #7:00 AM# AND #12:00 PM#");
    ASSERT_TRUE(copy.Ok()) << copy.Error;
    EXPECT_EQ(copy.StatementKind, JetStatement::Kind::SelectInto);
    EXPECT_EQ(copy.TargetTable, "table2");
    EXPECT_EQ(copy.SourceTable, "table3");
    ASSERT_EQ(copy.Sql.size(), 2u);
    EXPECT_EQ(copy.Sql[0],
              R"(CREATE TABLE "table2" ("DBID" INTEGER, "Major1" TIME, PRIMARY KEY ("DBID")))");
    EXPECT_EQ(copy.Sql[1], "INSERT INTO \"table2\" Select table3.* from table3 where major1 "
                           "between '07:00:00' AND '12:00:00'");

    // A list of columns, or a source without known columns, makes the table from the result.
    const JetStatement some = Translate("select dbid, major1 into [Work Table] from table3");
    ASSERT_EQ(some.Sql.size(), 1u);
    EXPECT_EQ(some.Sql[0], R"(CREATE TABLE "Work Table" AS select dbid, major1 from table3)");
}

TEST(JetSql, NamesAndTextsAreRequotedAndOneStatementIsAllowed)
{
    EXPECT_EQ(Translate("DROP TABLE [Table3];").Sql.at(0), R"(DROP TABLE "Table3")");
    EXPECT_EQ(Translate(R"(select * from [a"b] where x = "it's")").Sql.at(0),
              R"(select * from "a""b" where x = 'it''s')");
    const JetStatement read = Translate("Select * from table3 order by major1,juliandate");
    EXPECT_EQ(read.StatementKind, JetStatement::Kind::Select);
    EXPECT_EQ(read.SourceTable, "table3");
    EXPECT_EQ(Translate("select * from table1, table3").SourceTable, "");

    for (const char* bad : {"DROP TABLE [Table2]; DROP TABLE table1", "select * from [table1",
                            "select * from t where d = #31:00#", "select * from t where a = 'x",
                            "select * from t where a @ 1", ""})
        EXPECT_FALSE(Translate(bad).Ok()) << bad;
}
