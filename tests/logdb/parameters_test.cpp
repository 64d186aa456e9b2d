// Values given apart from the statement ("?" marks): a user's text with quotes reaches the
// engine and the search conditions as a value, never as part of the SQL.
#include "logdb/datacontrol.h"
#include "logdb/jetcondition.h"
#include "logdb/logfixture.h"

#include <gtest/gtest.h>

using namespace logtest;

TEST(Parameters, RecordSourceAndFindFirstTakeTextWithQuotesAsValues)
{
    DataControl data;
    data.SetDatabaseName(MakeYearFile("parameters", 40));
    data.SetRecordSource("select * from table1 where dbid = 7");
    ASSERT_TRUE(data.Refresh());
    ASSERT_TRUE(data.Edit());
    const QString note = "Bob's lure'; DROP TABLE table1; --";
    ASSERT_TRUE(data.SetField("Notes", note));
    ASSERT_TRUE(data.Update());

    data.SetRecordSource("select * from table1 where Notes = ? and Month = ?", {note, 1});
    ASSERT_TRUE(data.Refresh());
    ASSERT_EQ(data.RecordCount(), 1);
    EXPECT_EQ(data.Field("dbid").toInt(), 7);

    data.SetRecordSource("select * from table1 order by dbid");
    ASSERT_TRUE(data.Refresh());
    EXPECT_EQ(data.RecordCount(), 40);                          // the table is still there
    ASSERT_TRUE(data.FindFirst("Notes = ?", {note.toUpper()})); // text compares ignore case
    EXPECT_FALSE(data.NoMatch());
    EXPECT_EQ(data.Field("dbid").toInt(), 7);
    ASSERT_TRUE(data.FindFirst("dbid > ? and dbid < ?", {30, 32}));
    EXPECT_EQ(data.Field("dbid").toInt(), 31);
    ASSERT_TRUE(data.FindFirst("Notes = ?", {QString("Bob's")}));
    EXPECT_TRUE(data.NoMatch());
}

TEST(Parameters, MarksAndValuesMustMatch)
{
    std::string error;
    EXPECT_FALSE(JetCondition::Parse("City = ?", error, {}));
    EXPECT_FALSE(error.empty());
    EXPECT_FALSE(JetCondition::Parse("City = 'Austin'", error, {JetValue{{}, "x", false}}));
    const auto parsed =
        JetCondition::Parse("City = ? or City = ?", error,
                            {JetValue{{}, "Xi'an", false}, JetValue{{}, "Ya'an", false}});
    ASSERT_TRUE(parsed);
    EXPECT_TRUE(parsed->Matches([](std::string_view) { return JetValue{{}, "ya'AN", false}; }));
    EXPECT_FALSE(parsed->Matches([](std::string_view) { return JetValue{{}, "Lu'an", false}; }));
}
