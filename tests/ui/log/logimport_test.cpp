// SPDX-License-Identifier: GPL-3.0-or-later
// Importing catches from CSV into a real year file: the reader's quoting, every kind of bad
// row reported line by line before anything is written, and skipping or overwriting records
// that already hold an entry, checked by asking the file in plain SQL.
#include "logdb/backups.h"
#include "logdb/csvread.h"
#include "logdb/logimport.h"
#include "ui/log/frmselectdb.h"
#include "ui/log/logdata.h"
#include "ui/log/logwindowenv.h"

using namespace logtest;

namespace {

// A 2024 file without the fixture's notes, whose 11 January already holds a catch.
QString YearToImportInto(const QString& folderName)
{
    return MakeYearFileWithEntries(folderName, {{11, {{"TotalTaken", 1}}}});
}

// A CSV file of good rows and one of every kind of bad row.
QByteArray EveryKindOfRow()
{
    return testenv::FileBytes(QStringLiteral(QUILLMERE_LOG_DATA "/every_kind_of_row.csv"));
}

// The catch columns of a day, asked of the file.
QStringList Entry(const QString& path, const QString& date)
{
    const auto rows = PlainRows(path, "SELECT TotalTaken, TakenWith, PeakTime, Notes FROM "
                                      "table1 WHERE JulianDate = '" +
                                          date + "'");
    QStringList values;
    for (const QVariant& v : rows.at(0))
        values << (v.isNull() ? "<null>" : v.toString());
    return values;
}

const QStringList Empty = {"<null>", "<null>", "<null>", "<null>"};

} // namespace

TEST(ReadCsv, QuotedCommasQuotesAndLineBreaksWithTheirStartingLines)
{
    const auto records = ReadCsv("\xEF\xBB\xBF"
                                 "a,b,c\r\n\"x, y\",\"say \"\"hi\"\"\",\"two\nlines\"\n\nlast,,\n");
    ASSERT_EQ(records.size(), 3u);
    EXPECT_EQ(records[0].Fields, (std::vector<std::string>{"a", "b", "c"}));
    EXPECT_EQ(records[1].Line, 2);
    EXPECT_EQ(records[1].Fields, (std::vector<std::string>{"x, y", "say \"hi\"", "two\nlines"}));
    EXPECT_EQ(records[2].Line, 5);
    EXPECT_EQ(records[2].Fields, (std::vector<std::string>{"last", "", ""}));
}

// Every bad row is named by its line before anything is written; Skip leaves a held entry,
// Overwrite replaces it; a file without a date column imports nothing.
TEST(LogImport, ReportsEveryBadRowByLineThenSkipsOrOverwritesHeldEntries)
{
    const QString path = YearToImportInto("import-plan");
    const QString copy = QFileInfo(path).absolutePath() + "/copy.mdb";
    ASSERT_TRUE(QFile::copy(path, copy));
    const QByteArray before = testenv::FileBytes(path);
    ImportPlan plan;
    ASSERT_TRUE(PlanImport(path, 2024, EveryKindOfRow(), plan));
    QStringList issues;
    for (const QStringList& row : DataRows("import_issues.txt", '\t'))
        issues << row[0];
    EXPECT_EQ(IssueLines(plan), issues);
    ASSERT_EQ(plan.Rows.size(), 3u);
    EXPECT_EQ(plan.Rows[1].Line, 8);
    EXPECT_EQ(plan.OccupiedRows(), 1);
    EXPECT_EQ(testenv::FileBytes(path), before);

    ImportCount count;
    ASSERT_TRUE(ApplyImport(path, plan, ImportChoice::Skip, count));
    EXPECT_EQ(count.Written, 2);
    EXPECT_EQ(Entry(path, "2024-01-05"), QStringList({"3", "worms", "7:00 AM", "clear, calm"}));
    EXPECT_EQ(Entry(path, "2024-01-09"),
              QStringList({"4", "spinner", "11:00 PM", "said \"big\"\nall day"}));
    EXPECT_EQ(Entry(path, "2024-01-11"), QStringList({"1", "<null>", "<null>", "<null>"}));
    for (const char* untouched : {"2024-01-06", "2024-01-07", "2024-01-08", "2024-01-10"})
        EXPECT_EQ(Entry(path, untouched), Empty) << untouched;
    ASSERT_TRUE(ApplyImport(copy, plan, ImportChoice::Overwrite, count));
    EXPECT_EQ(count.Written, 3);
    EXPECT_EQ(Entry(copy, "2024-01-11"), QStringList({"6", "jig", "5:00 PM", "<null>"}));

    ImportPlan none;
    const DbResult noDate = PlanImport(path, 2024, "Date,TotalTaken\n01/05/2024,3\n", none);
    EXPECT_FALSE(noDate);
    EXPECT_EQ(noDate.Message, "The first line names no JulianDate column.");
}

// Database Functions wants a selected file, shows the problems and the choice, and imports
// after a backup of the file as it was.
TEST(LogImport, DatabaseFunctionsShowsTheProblemsThenImportsAfterABackup)
{
    const QString path = YearToImportInto("import-window");
    LogWindowEnv env(QFileInfo(path).absolutePath());
    const QString csv = env.Folder + "/catches.csv";
    testenv::WriteFile(csv, EveryKindOfRow());
    FrmSelectDB w(env.Context());
    w.ChooseImportFile = [&] { return csv; };
    w.CmdImport_Click(); // nothing selected
    w.DBFiles->setCurrentRow(0);
    env.Answers = {MsgResult::Cancel};
    w.CmdImport_Click();
    EXPECT_TRUE(ListBackups(path).isEmpty());
    env.Answers = {MsgResult::No};
    w.CmdImport_Click();
    const QStringList texts = env.ShownTexts();
    ASSERT_EQ(texts.size(), 4) << texts.join("|").toStdString();
    EXPECT_EQ(texts[0], "No File Selected! ");
    EXPECT_TRUE(texts[1].startsWith("3 day(s) can be imported into 2024.mdb.\n\nLine 1: unknown "
                                    "column \"Bait Color\" is ignored\nLine 4: "))
        << texts[1].toStdString();
    EXPECT_TRUE(texts[1].endsWith("1 of these days already hold an entry. Yes overwrites those "
                                  "entries, No keeps them and imports the rest, Cancel imports "
                                  "nothing."));
    EXPECT_EQ(texts[3], "2 day(s) of 2024.mdb now hold the imported entries.");
    EXPECT_EQ(Entry(path, "2024-01-05"), QStringList({"3", "worms", "7:00 AM", "clear, calm"}));
    ASSERT_EQ(ListBackups(path).size(), 1); // the file as it was before the import
    EXPECT_EQ(Entry(ListBackups(path)[0], "2024-01-05"), Empty);
    w.show();
    Screenshot(w, "frmselectdb-import");
}
