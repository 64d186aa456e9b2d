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

// The statements as SQLite takes them: a whole row copied keeps the source's columns, a list of
// columns makes the table from the result; names and texts requoted; one statement at most.
TEST(JetSql, StatementsAsSqliteTakesThem)
{
    const JetStatement copy = Translate(
        "Select table3.* into table2 from table3 where major1 between #7:00 AM# AND #12:00 PM#");
    EXPECT_EQ(copy.Sql,
              (std::vector<std::string>{
                  R"(CREATE TABLE "table2" ("DBID" INTEGER, "Major1" TIME, PRIMARY KEY ("DBID")))",
                  "INSERT INTO \"table2\" Select table3.* from table3 where major1 "
                  "between '07:00:00' AND '12:00:00'"}));
    EXPECT_EQ(Translate("select dbid, major1 into [Work Table] from table3").Sql.at(0),
              R"(CREATE TABLE "Work Table" AS select dbid, major1 from table3)");
    EXPECT_EQ(Translate("DROP TABLE [Table3];").Sql.at(0), R"(DROP TABLE "Table3")");
    EXPECT_EQ(Translate(R"(select * from [a"b] where x = "it's")").Sql.at(0),
              R"(select * from "a""b" where x = 'it''s')");
    for (const char* bad : {"DROP TABLE [Table2]; DROP TABLE table1", "select * from [table1",
                            "select * from t where d = #31:00#", "select * from t where a = 'x",
                            "select * from t where a @ 1", ""})
        EXPECT_FALSE(Translate(bad).Ok()) << bad;
}
