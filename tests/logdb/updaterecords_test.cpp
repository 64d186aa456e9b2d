// Many records changed by key in one transaction: all of them, or on a failure none.
#include "logdb/datacontrol.h"
#include "logdb/logfixture.h"

#include <gtest/gtest.h>

using namespace logtest;

TEST(UpdateRecords, AllOrNoneThenTheResultIsReadAgain)
{
    DataControl data;
    data.SetDatabaseName(MakeYearFile("updaterecords", 10));
    data.SetRecordSource("select * from table1 order by dbid");
    ASSERT_TRUE(data.Refresh());
    const std::vector<RecordChange> bad = {{2, {{"Notes", "kept?"}}},
                                           {3, {{"TotalTaken", "many"}}}}; // not a number
    EXPECT_FALSE(data.UpdateRecords(bad));
    ASSERT_TRUE(data.Refresh());
    ASSERT_TRUE(data.FindFirst("Notes = ?", {QString("kept?")}));
    EXPECT_TRUE(data.NoMatch());

    ASSERT_TRUE(data.UpdateRecords({{2, {{"Notes", "two"}}}, {3, {{"Notes", "three"}}}}));
    EXPECT_EQ(data.AbsolutePosition(), 0);
    ASSERT_TRUE(data.FindFirst("Notes = 'three'"));
    EXPECT_FALSE(data.NoMatch());
    EXPECT_EQ(data.Field("dbid").toInt(), 3);
}
