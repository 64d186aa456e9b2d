// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/logfixture.h"

#include "db/datacontrol.h"
#include "logdb/logfiles.h"
#include "support/testenv.h"
#include "text/vbformat.h"

#include <QDir>

#include <gtest/gtest.h>

namespace logtest {

namespace {
constexpr double Jan1Serial = 45292.0; // 1 January 2024
}

Day DayOf(int number)
{
    const double serial = Jan1Serial + number - 1;
    return {number,
            serial,
            (number * 53) % 1440,
            std::stoi(VbFormatDate(serial, "w")),
            std::stoi(VbFormatDate(serial, "m")),
            number % 5,
            (number / 15) % 2};
}

FieldValues DayRecord(int number)
{
    const Day d = DayOf(number);
    const auto text = [](const std::string& s) { return QVariant(QString::fromStdString(s)); };
    const auto clock = [&](int minute) {
        return text(VbFormatDate(d.Serial + (minute % 1440) / 1440.0, "hh:mm AMPM"));
    };
    return {{"JulianDate", text(VbFormatDate(d.Serial, "mm/dd/yyyy"))},
            {"SunRise", clock(360 + number % 60)},
            {"SunSet", clock(1080 + number % 90)},
            {"CivilTwilight", text("05:40 AM/06:50 PM")},
            {"MoonRise", number % 29 == 0 ? QVariant(-1) : QVariant(number % 24 + 0.25)},
            {"Major1", clock(d.Major1Minute)},
            {"Major2", clock(d.Major1Minute + 720)},
            {"Minor1", QVariant(-1)},
            {"IllumPercent", QVariant(number % 101)},
            {"GraphicType", QVariant(d.Rating)},
            {"MoonAge", QVariant(number % 30)},
            {"Waxing", QVariant(d.Waxing)},
            {"DaylightHours", QVariant(12.0 + (number % 90) / 60.0)},
            {"Month", text(VbFormatDate(d.Serial, "m"))},
            {"DayOfWeek_", text(VbFormatDate(d.Serial, "w"))},
            {"Perigee", QVariant(number % 27 == 0 ? 1 : 0)},
            {"Notes", QString("row-%1").arg(number, 3, 10, QChar('0'))}};
}

QString MakeYearFile(const QString& folderName, int days)
{
    const QString folder = testenv::FreshDir(folderName);
    const CreateYearResult created = CreateYearFile(folder, Year);
    EXPECT_EQ(created.Outcome, CreateYearResult::Status::Created) << created.Message.toStdString();
    std::vector<FieldValues> records;
    for (int n = 1; n <= days; ++n)
        records.push_back(DayRecord(n));
    DataControl data;
    data.SetDatabaseName(created.Path);
    data.SetRecordSource("select * from table1");
    EXPECT_TRUE(data.Refresh());
    const DbResult added = data.AddRecords(records);
    EXPECT_TRUE(added) << added.Message.toStdString();
    return created.Path;
}

QString MakeYearFileWithEntries(const QString& folderName, const Entries& entries)
{
    const QString path = MakeYearFile(folderName);
    Database db;
    EXPECT_TRUE(db.Open(path));
    EXPECT_TRUE(db.Execute("UPDATE table1 SET Notes = NULL"));
    for (const auto& [dbid, fields] : entries)
        EXPECT_TRUE(db.UpdateRecord({"table1"}, "DBID", dbid, fields)) << dbid;
    return path;
}

std::vector<int> RecordIds(const QString& path, const QString& recordSource)
{
    DataControl data;
    data.SetDatabaseName(path);
    data.SetRecordSource(recordSource);
    EXPECT_TRUE(data.Refresh()) << recordSource.toStdString();
    std::vector<int> ids;
    for (; !data.IsEOF(); data.MoveNext())
        ids.push_back(data.Field("DBID").toInt());
    return ids;
}

int CountRows(const QString& path, const QString& table, const QString& connect)
{
    Database db;
    RowSet rows;
    if (!db.Open(path, connect) || !db.Query("select count(*) from [" + table + "]", rows))
        return -1;
    return rows.Rows.at(0).at(0).toInt();
}

void RunQueryStep(const QString& path, const QString& statement)
{
    // A missing table to drop is no error, as in the query builder.
    Database db;
    ASSERT_TRUE(db.Open(path));
    db.Execute("DROP TABLE [Table2];");
    const DbResult made = db.Execute(statement);
    ASSERT_TRUE(made) << statement.toStdString() << ": " << made.Message.toStdString();
    db.Execute("DROP TABLE [Table3];");
    ASSERT_TRUE(db.Execute("select table2.* into table3 from table2"));
}

} // namespace logtest
