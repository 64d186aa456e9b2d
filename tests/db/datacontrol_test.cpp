// SPDX-License-Identifier: GPL-3.0-or-later
// The data control over a filled year: moving, finding, editing, adding and deleting, and
// what reaches the file; values given apart from the statement ("?" marks), so that a user's
// text with quotes stays a value and never becomes SQL. Bound boxes and the edits of a query
// result reaching table1 are checked through the log's windows (tests/ui/log).
#include "db/datacontrol.h"
#include "db/jetcondition.h"
#include "support/filledyear.h"
#include "support/logfixture.h"

#include <QFileInfo>

#include <gtest/gtest.h>

using namespace logtest;

namespace {

class DataControlTest : public ::testing::Test {
protected:
    void SetUp() override { path_ = MakeYearFile("datacontrol"); }

    void Open(DataControl& data, const QString& source = "Select * from table1 order by juliandate")
    {
        data.SetDatabaseName(path_);
        data.SetRecordSource(source);
        const DbResult refreshed = data.Refresh();
        ASSERT_TRUE(refreshed) << refreshed.Message.toStdString();
    }

    QString path_;
};

} // namespace

TEST_F(DataControlTest, MovesThroughTheRecordsWithExactCountAndPosition)
{
    DataControl data;
    int repositions = 0;
    QObject::connect(&data, &DataControl::Reposition, [&] { ++repositions; });
    Open(data);
    EXPECT_EQ(data.RecordCount(), DaysInYear);
    EXPECT_EQ(data.AbsolutePosition(), 0);
    EXPECT_TRUE(data.MoveLast());
    EXPECT_EQ(data.AbsolutePosition(), DaysInYear - 1);
    EXPECT_EQ(data.Field("JulianDate"), QVariant("2024-12-31"));
    EXPECT_TRUE(data.MoveNext());
    EXPECT_TRUE(data.IsEOF());
    EXPECT_EQ(data.AbsolutePosition(), -1);
    EXPECT_FALSE(data.Field("JulianDate").isValid());
    EXPECT_FALSE(data.MoveNext());
    EXPECT_TRUE(data.MovePrevious());
    EXPECT_EQ(data.AbsolutePosition(), DaysInYear - 1);
    EXPECT_TRUE(data.MoveFirst());
    EXPECT_TRUE(data.MovePrevious());
    EXPECT_TRUE(data.IsBOF());
    EXPECT_FALSE(data.MovePrevious());
    EXPECT_TRUE(data.MoveNext());
    EXPECT_EQ(data.Field("juliandate"), QVariant("2024-01-01"));
    EXPECT_EQ(repositions, 7);

    data.SetRecordSource("select * from table1 where month = 13");
    ASSERT_TRUE(data.Refresh());
    EXPECT_TRUE(data.IsBOF() && data.IsEOF());
    EXPECT_FALSE(data.MoveLast());
}

TEST_F(DataControlTest, FieldsByNameAndPositionInStoredForms)
{
    DataControl data;
    Open(data);
    EXPECT_EQ(data.FieldCount(), 25);
    EXPECT_EQ(data.FieldName(0), "DBID");
    EXPECT_EQ(data.FieldName(11), "SunRise");
    EXPECT_EQ(data.FieldIndex("MAJOR2"), 7);
    EXPECT_EQ(data.FieldIndex("nosuch"), -1);
    EXPECT_EQ(data.FieldKind(6), ColumnKind::Time);
    EXPECT_EQ(data.Field(6), data.Field("major1"));
    const Day first = DayOf(1);
    EXPECT_EQ(data.Field("Major1").toString(),
              QString::asprintf("%02d:%02d:00", first.Major1Minute / 60, first.Major1Minute % 60));
    EXPECT_EQ(data.Field("Month").toInt(), 1);
    EXPECT_EQ(data.Field("MoonRise").toDouble(), 1.25);
    EXPECT_TRUE(data.Field("TotalTaken").isNull());
}

// Each condition, with BETWEEN and the comparisons met at their lower or their upper end,
// finds the first record plain SQLite finds for the same question.
TEST_F(DataControlTest, FindFirstFindsWhatPlainSqlFindsAtBothEndsOfARange)
{
    DataControl data;
    Open(data);
    const std::vector<std::pair<QString, QString>> cases = {
        {"dbid = 12", "DBID = 12"},
        {"dbid between 12 and 20", "DBID BETWEEN 12 AND 20"},
        {"dbid between 1 and 12 and dbid >= 12", "DBID = 12"},
        {"month between 2 and 3 and dbid > 59", "DBID = 60"}, // the upper month
        {"month between 3 and 4 and dayofweek_ = 1", "Month BETWEEN 3 AND 4 AND DayOfWeek_ = 1"},
        {"JulianDate between #06/01/2024# and #07/04/2024# and dbid >= 186",
         "JulianDate = '2024-07-04'"},
        {"JulianDate >= #07/04/2024# and (graphictype = 4 or waxing = 1)",
         "JulianDate >= '2024-07-04' AND (GraphicType = 4 OR Waxing = 1)"},
        {"major1 between #1:00 AM# and #1:46 AM#", "Major1 BETWEEN '01:00:00' AND '01:46:00'"},
        {"major1 between #1:46 AM# and #2:00 AM#", "Major1 BETWEEN '01:46:00' AND '02:00:00'"},
        {"notes between 'row-010' and 'ROW-012' and dbid > 11", "DBID = 12"},
        {"dbid > ? and dbid < 14", "DBID = 13"},
        {"dbid = 9999", "0"},
    };
    int current = 1;
    for (const auto& [condition, plain] : cases) {
        const QVariantList values = condition.contains('?') ? QVariantList{12} : QVariantList{};
        ASSERT_TRUE(data.FindFirst(condition, values)) << condition.toStdString();
        const std::vector<int> first =
            PlainIds(path_, "SELECT DBID FROM table1 WHERE " + plain + " ORDER BY JulianDate");
        EXPECT_EQ(data.NoMatch(), first.empty()) << condition.toStdString();
        current = first.empty() ? current : first[0]; // no match: the record stays
        EXPECT_EQ(data.Field("DBID").toInt(), current) << condition.toStdString();
    }
    for (const char* refused :
         {"dbid = 1; delete from table1", "dbid = 1 or 1 = 1", "nosuch = 1", ""})
        EXPECT_FALSE(data.FindFirst(refused)) << refused;
    EXPECT_EQ(CountRows(path_, "table1"), DaysInYear);
}

TEST_F(DataControlTest, EditUpdateAndCancel)
{
    DataControl data;
    Open(data);
    ASSERT_TRUE(data.FindFirst("dbid = 40"));
    EXPECT_FALSE(data.SetField("TotalTaken", 3)); // not editing

    ASSERT_TRUE(data.Edit());
    EXPECT_EQ(data.EditMode(), DataControl::EditState::Editing);
    ASSERT_TRUE(data.SetField("TotalTaken", "3"));
    EXPECT_EQ(data.Field("totaltaken"), QVariant(qlonglong(3)));
    EXPECT_FALSE(data.MoveNext()); // the edit must be finished first
    EXPECT_FALSE(data.SetField("TotalTaken", "lots"));
    data.CancelUpdate();
    EXPECT_TRUE(data.Field("TotalTaken").isNull());

    ASSERT_TRUE(data.Edit());
    ASSERT_TRUE(data.SetField("TotalTaken", "7"));
    ASSERT_TRUE(data.SetField("TakenWith", "spinner"));
    ASSERT_TRUE(data.SetField("PeakTime", "6:00 AM"));
    ASSERT_TRUE(data.Update());
    EXPECT_EQ(data.EditMode(), DataControl::EditState::None);
    EXPECT_EQ(data.LastModified().toInt(), 40);
    EXPECT_EQ(data.AbsolutePosition(), 39);
    EXPECT_EQ(data.Field("TotalTaken").toInt(), 7);
    EXPECT_FALSE(data.Update());

    // The edit is in the file: a new control on a new connection reads it.
    data.Close();
    DataControl again;
    Open(again);
    ASSERT_TRUE(again.FindFirst("TakenWith = 'SPINNER'"));
    EXPECT_FALSE(again.NoMatch());
    EXPECT_EQ(again.Field("DBID").toInt(), 40);
    EXPECT_EQ(again.Field("TotalTaken").toInt(), 7);
    EXPECT_EQ(again.Field("PeakTime"), QVariant("6:00 AM"));
}

TEST_F(DataControlTest, AddNewAndDelete)
{
    DataControl data;
    Open(data);
    ASSERT_TRUE(data.MoveLast());
    ASSERT_TRUE(data.AddNew());
    EXPECT_EQ(data.EditMode(), DataControl::EditState::Adding);
    ASSERT_TRUE(data.SetField("JulianDate", "12/31/2024"));
    ASSERT_TRUE(data.SetField("Major1", "11:59 PM"));
    ASSERT_TRUE(data.SetField("Notes", "extra"));
    ASSERT_TRUE(data.Update());
    EXPECT_EQ(data.RecordCount(), DaysInYear + 1);
    EXPECT_EQ(data.AbsolutePosition(), DaysInYear - 1); // the record current before stays
    ASSERT_TRUE(data.SetBookmark(data.LastModified()));
    EXPECT_EQ(data.AbsolutePosition(), DaysInYear);
    EXPECT_EQ(data.Field("DBID").toInt(), DaysInYear + 1);
    EXPECT_EQ(data.Field("Major1"), QVariant("23:59:00"));

    ASSERT_TRUE(data.FindFirst("dbid = 100"));
    ASSERT_TRUE(data.Delete());
    EXPECT_EQ(data.RecordCount(), DaysInYear);
    EXPECT_EQ(data.Field("DBID").toInt(), 101); // the next record becomes current
    EXPECT_FALSE(data.SetBookmark(QVariant(100)));
    EXPECT_EQ(CountRows(path_, "table1"), DaysInYear);
}

TEST_F(DataControlTest, ReadOnlySourcesBadStatementsAndAMissingFileAreRefused)
{
    DataControl data;
    Open(data, "select JulianDate, Notes from table1");
    EXPECT_FALSE(data.Updatable());
    EXPECT_FALSE(data.Edit());
    EXPECT_FALSE(data.AddNew());
    EXPECT_FALSE(data.Delete());
    for (const char* source : {"DROP TABLE table1", "select * from nosuch"}) {
        data.SetRecordSource(source);
        EXPECT_FALSE(data.Refresh()) << source;
    }
    EXPECT_EQ(CountRows(path_, "table1"), DaysInYear);

    data.SetDatabaseName(path_ + ".gone");
    data.SetRecordSource("select * from table1");
    EXPECT_TRUE(data.Refresh().Message.contains("Could not find file"));
    EXPECT_FALSE(QFileInfo::exists(path_ + ".gone"));
}

TEST_F(DataControlTest, AYearIsWrittenWhollyOrNotAtAll)
{
    const QString path = MakeYearFile("wholeyear", 0);
    DataControl data;
    data.SetDatabaseName(path);
    data.SetRecordSource("select * from table1");
    ASSERT_TRUE(data.Refresh());
    std::vector<FieldValues> records;
    for (int n = 1; n <= DaysInYear; ++n)
        records.push_back(DayRecord(n));
    ASSERT_EQ(records[200][0].first, "JulianDate");
    const QVariant good = records[200][0].second;
    records[200][0].second = "02/30/2024";
    const DbResult failed = data.AddRecords(records);
    EXPECT_FALSE(failed);
    EXPECT_TRUE(failed.Message.contains("201")) << failed.Message.toStdString();
    EXPECT_EQ(CountRows(path, "table1"), 0);

    records[200][0].second = good;
    ASSERT_TRUE(data.AddRecords(records));
    EXPECT_EQ(data.RecordCount(), DaysInYear);
    EXPECT_EQ(CountRows(path, "table1"), DaysInYear);
}

TEST_F(DataControlTest, RecordSourceAndFindFirstTakeTextWithQuotesAsValues)
{
    DataControl data;
    Open(data, "select * from table1 where dbid = 7");
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
    EXPECT_EQ(data.RecordCount(), DaysInYear);                  // the table is still there
    ASSERT_TRUE(data.FindFirst("Notes = ?", {note.toUpper()})); // text compares ignore case
    EXPECT_FALSE(data.NoMatch());
    EXPECT_EQ(data.Field("dbid").toInt(), 7);
    ASSERT_TRUE(data.FindFirst("dbid > ? and dbid < ?", {30, 32}));
    EXPECT_EQ(data.Field("dbid").toInt(), 31);
    ASSERT_TRUE(data.FindFirst("Notes = ?", {QString("Bob's")}));
    EXPECT_TRUE(data.NoMatch());
}

TEST(JetConditionValues, MarksAndValuesMustMatch)
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

// Many records changed by key in one transaction: all of them, or on a failure none.
TEST_F(DataControlTest, UpdateRecordsAllOrNoneThenTheResultIsReadAgain)
{
    DataControl data;
    Open(data, "select * from table1 order by dbid");
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
