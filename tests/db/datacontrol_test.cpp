// SPDX-License-Identifier: GPL-3.0-or-later
// The data control over a filled year: moving, finding, editing, adding and deleting, checked
// with plain SQL on the file; a user's text with quotes stays a value and never becomes SQL.
// The all-or-nothing year is checked by the fill (logdb/filldata_test.cpp), bound boxes through
// the log's windows (tests/ui/log).
#include "db/datacontrol.h"
#include "support/filledyear.h"
#include "support/logfixture.h"
#include "support/testenv.h"

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

TEST_F(DataControlTest, MovesThroughTheRecordsAndRefusesWhatItCannotRead)
{
    DataControl data;
    int repositions = 0;
    QObject::connect(&data, &DataControl::Reposition, [&] { ++repositions; });
    Open(data);
    EXPECT_EQ(data.RecordCount(), DaysInYear);
    EXPECT_EQ(data.Field("Major1"),
              PlainColumn(path_, "select Major1 from table1 where dbid = 1")[0]);
    EXPECT_TRUE(data.MoveLast());
    EXPECT_EQ(data.AbsolutePosition(), DaysInYear - 1);
    EXPECT_EQ(data.Field("JulianDate"), QVariant("2024-12-31"));
    EXPECT_TRUE(data.MoveNext());
    EXPECT_TRUE(data.IsEOF());
    EXPECT_FALSE(data.MoveNext());
    EXPECT_TRUE(data.MoveFirst());
    EXPECT_TRUE(data.MovePrevious());
    EXPECT_TRUE(data.IsBOF());
    EXPECT_FALSE(data.MovePrevious());
    EXPECT_TRUE(data.MoveNext());
    EXPECT_EQ(data.Field("juliandate"), QVariant("2024-01-01"));
    EXPECT_EQ(repositions, 6);

    data.SetRecordSource("select * from table1 where month = 13");
    ASSERT_TRUE(data.Refresh());
    EXPECT_TRUE(data.IsBOF() && data.IsEOF());
    EXPECT_FALSE(data.MoveLast());

    // Read-only sources, bad statements and a missing file are refused.
    Open(data, "select JulianDate, Notes from table1");
    EXPECT_FALSE(data.Edit() || data.AddNew() || data.Delete());
    for (const char* source : {"DROP TABLE table1", "select * from nosuch"}) {
        data.SetRecordSource(source);
        EXPECT_FALSE(data.Refresh()) << source;
    }
    EXPECT_EQ(CountRows(path_, "table1"), DaysInYear);
    data.SetDatabaseName(path_ + ".gone");
    EXPECT_TRUE(data.Refresh().Message.contains("Could not find file"));
    EXPECT_FALSE(QFileInfo::exists(path_ + ".gone"));
}

// Each condition of data/find_first.txt finds the first record plain SQLite finds.
TEST_F(DataControlTest, FindFirstFindsWhatPlainSqlFindsAtBothEndsOfARange)
{
    DataControl data;
    Open(data);
    int current = 1;
    for (const QStringList& row : testenv::DataRows(QUILLMERE_TESTDATA "/find_first.txt")) {
        const QString &condition = row[0], &plain = row[1];
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

// Edits, additions and deletions reach the file (read back with plain SQL); a failed step, or
// one failing record of many, changes nothing.
TEST_F(DataControlTest, EditAddAndDeleteReachTheFileWhollyOrNotAtAll)
{
    DataControl data;
    Open(data);
    ASSERT_TRUE(data.FindFirst("dbid = 40"));
    EXPECT_FALSE(data.SetField("TotalTaken", 3)); // not editing
    ASSERT_TRUE(data.Edit());
    ASSERT_TRUE(data.SetField("TotalTaken", "3"));
    EXPECT_FALSE(data.MoveNext()); // the edit must be finished first
    EXPECT_FALSE(data.SetField("TotalTaken", "lots"));
    data.CancelUpdate();
    EXPECT_TRUE(data.Field("TotalTaken").isNull());

    const QString note = "Bob's lure'; DROP TABLE table1; --";
    ASSERT_TRUE(data.Edit());
    ASSERT_TRUE(data.SetField("TotalTaken", "7"));
    ASSERT_TRUE(data.SetField("Notes", note));
    ASSERT_TRUE(data.SetField("PeakTime", "6:00 AM"));
    ASSERT_TRUE(data.Update());
    EXPECT_EQ(data.LastModified().toInt(), 40);
    EXPECT_EQ(data.AbsolutePosition(), 39);
    EXPECT_EQ(PlainRows(path_, "select TotalTaken, Notes, PeakTime from table1 where dbid = 40")[0],
              (std::vector<QVariant>{7, note, "6:00 AM"}));
    data.SetRecordSource("select * from table1 where Notes = ? and Month = ?", {note, 2});
    ASSERT_TRUE(data.Refresh());
    ASSERT_EQ(data.RecordCount(), 1);
    EXPECT_EQ(data.Field("dbid").toInt(), 40);

    Open(data);
    ASSERT_TRUE(data.MoveLast());
    ASSERT_TRUE(data.AddNew());
    ASSERT_TRUE(data.SetField("JulianDate", "12/31/2024"));
    ASSERT_TRUE(data.SetField("Major1", "11:59 PM"));
    ASSERT_TRUE(data.Update());
    EXPECT_EQ(data.AbsolutePosition(), DaysInYear - 1); // the record current before stays
    ASSERT_TRUE(data.SetBookmark(data.LastModified()));
    EXPECT_EQ(data.AbsolutePosition(), DaysInYear);
    EXPECT_EQ(PlainColumn(path_, "select Major1 from table1 where dbid = 367")[0], "23:59:00");
    ASSERT_TRUE(data.FindFirst("dbid = 100"));
    ASSERT_TRUE(data.Delete());
    EXPECT_EQ(data.Field("DBID").toInt(), 101); // the next record becomes current
    EXPECT_FALSE(data.SetBookmark(QVariant(100)));
    EXPECT_EQ(PlainIds(path_, "select dbid from table1 where dbid in (99, 100, 101)"),
              (std::vector<int>{99, 101}));

    EXPECT_FALSE(data.UpdateRecords({{4, {{"Notes", "kept?"}}}, {3, {{"TotalTaken", "many"}}}}));
    ASSERT_TRUE(data.UpdateRecords({{2, {{"Notes", "two"}}}, {3, {{"Notes", "three"}}}}));
    EXPECT_EQ(PlainColumn(path_, "select Notes from table1 where dbid in (2, 3, 4) order by dbid"),
              (std::vector<QVariant>{"two", "three", "row-004"}));
    EXPECT_EQ(data.RecordCount(), DaysInYear);
}
