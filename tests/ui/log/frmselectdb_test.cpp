// SPDX-License-Identifier: GPL-3.0-or-later
// "Database Functions" offscreen on real folders: the file list, the messages, creating and
// filling a year, deleting, compacting and repairing, and the browser it opens; backups of
// the year files (a copy only when the file changed, ten kept per year, restoring that keeps
// the current file) and the Backups window; importing catches from CSV (the reader's quoting,
// every kind of bad row reported line by line before anything is written, skipping or
// overwriting records that already hold an entry), checked by asking the files in plain SQL.
#include "logdb/backups.h"
#include "logdb/csvread.h"
#include "logdb/logfiles.h"
#include "logdb/logimport.h"
#include "ui/log/frmbackups.h"
#include "ui/log/frmselectdb.h"
#include "ui/log/logdata.h"
#include "ui/log/logwindowenv.h"

#include <QProcess>
#include <QProgressBar>

#include <algorithm>

using namespace logtest;

namespace {

// A program folder with the template, the city database and two year files.
QString ProgramFolderWithFiles(const QString& name)
{
    const QString folder = testenv::FreshDir(name);
    EXPECT_TRUE(CreateTemplateFile(folder + "/Default.mdb"));
    EXPECT_TRUE(QFile::copy(folder + "/Default.mdb", folder + "/Encdb.MDB"));
    for (int year : {2004, 2005})
        EXPECT_EQ(CreateYearFile(folder, year).Outcome, CreateYearResult::Status::Created);
    return folder;
}

// The window shown, with the browser it would open recorded instead of shown.
struct Shown {
    LogWindowEnv& Env;
    FrmSelectDB Window;
    QStringList Browsed;
    explicit Shown(LogWindowEnv& env, std::int16_t year = 2024)
        : Env(env), Window(env.Context(year))
    {
        Window.ShowBrowser = [this](const QString& path) { Browsed << path; };
        Window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&Window));
    }
    QStringList Listed() const
    {
        QStringList names;
        for (int i = 0; i < Window.DBFiles->count(); ++i)
            names << Window.DBFiles->item(i)->text();
        return names;
    }
    void Click(QPushButton* button, MsgResult answer = MsgResult::OK)
    {
        Env.Answers = {answer};
        QTest::mouseClick(button, Qt::LeftButton);
    }
    void Select(const QString& name, bool twice = false)
    {
        const auto items = Window.DBFiles->findItems(name, Qt::MatchExactly);
        ASSERT_EQ(items.size(), 1);
        const QPoint at = Window.DBFiles->visualItemRect(items[0]).center();
        QTest::mouseClick(Window.DBFiles->viewport(), Qt::LeftButton, {}, at);
        if (twice)
            QTest::mouseDClick(Window.DBFiles->viewport(), Qt::LeftButton, {}, at);
    }
};

const QDateTime Start(QDate(2026, 5, 1), QTime(6, 0));

void SetTaken(const QString& path, int dbid, int taken)
{
    PlainExec(path,
              QString("UPDATE table1 SET TotalTaken = %1 WHERE DBID = %2").arg(taken).arg(dbid));
}

// TotalTaken of a record, asked of the file in plain SQL.
int Taken(const QString& path, int dbid)
{
    return PlainColumn(path, QString("SELECT TotalTaken FROM table1 WHERE DBID = %1").arg(dbid))
        .at(0)
        .toInt();
}

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

// Only year files are listed; every file button wants a selection first; a click selects and
// a double click opens the browser.
TEST(FrmSelectDB, ListsYearFilesAndAClickSelectsAndADoubleClickOpens)
{
    LogWindowEnv env(ProgramFolderWithFiles("select-open"));
    Shown w(env);
    EXPECT_EQ(w.Listed(), QStringList({"2004.mdb", "2005.mdb"}));
    for (QPushButton* b :
         {w.Window.OpenDBFile, w.Window.DeleteDBFile, w.Window.CmdCompact, w.Window.CmdRepair})
        w.Click(b);
    ASSERT_EQ(env.Messages.Shown().size(), 4u);
    for (const ShownMessage& m : env.Messages.Shown())
        EXPECT_TRUE(m.Text == "No File Selected! " && m.Buttons == MsgButtons::OKCancel);
    EXPECT_EQ(w.Listed().size(), 2);
    EXPECT_TRUE(env.State.DBPath.isEmpty());
    Screenshot(w.Window, "FrmSelectDB");

    w.Select("2005.mdb");
    EXPECT_EQ(env.State.DBPath, env.Folder + "/2005.mdb");
    EXPECT_TRUE(w.Browsed.isEmpty() && w.Window.isVisible());
    w.Select("2004.mdb", true);
    EXPECT_EQ(w.Browsed, QStringList{env.Folder + "/2004.mdb"});
    EXPECT_FALSE(w.Window.isVisible());
}

// Create asks for the shown year and fills it; asked again, it leaves the angler's entries
// alone and browses the file. Answered No it creates nothing and browses only a chosen file.
TEST(FrmSelectDB, CreateFillsTheShownYearOnceAndNoCreatesNothing)
{
    LogWindowEnv env(ProgramFolderWithFiles("select-create"));
    const QString path = env.Folder + "/2024.mdb";
    {
        Shown no(env);
        no.Click(no.Window.CmdCreate, MsgResult::No);
        EXPECT_FALSE(QFile::exists(path) || no.Window.isVisible());
        EXPECT_TRUE(no.Browsed.isEmpty()); // no year file chosen yet
        Shown chosen(env);
        chosen.Select("2004.mdb");
        chosen.Click(chosen.Window.CmdCreate, MsgResult::No);
        EXPECT_EQ(chosen.Browsed, QStringList{env.Folder + "/2004.mdb"});
    }
    Shown w(env);
    w.Click(w.Window.CmdCreate, MsgResult::Yes);
    EXPECT_EQ(env.ShownTexts().last(), "Create DataBase for 2024");
    EXPECT_EQ(env.Messages.Shown().back().Buttons, MsgButtons::YesNo);
    EXPECT_EQ(CountRows(path, "table1"), 366);
    EXPECT_EQ(env.State.DBPath, path);
    EXPECT_EQ(w.Browsed, QStringList{path});
    EXPECT_TRUE(!w.Window.isVisible() && w.Window.PBar1->isHidden());
    EXPECT_EQ(w.Window.PBar1->value(), 366);
    EXPECT_TRUE(w.Listed().contains("2024.mdb"));

    PlainExec(path, "UPDATE table1 SET Notes = 'pike' WHERE DBID = 10");
    const QByteArray before = testenv::FileBytes(path);
    Shown again(env);
    again.Click(again.Window.CmdCreate, MsgResult::Yes);
    EXPECT_EQ(env.ShownTexts().last(), "DataBase already exists for 2024");
    EXPECT_EQ(env.Messages.Shown().back().Buttons, MsgButtons::OKCancel);
    EXPECT_EQ(testenv::FileBytes(path), before);
    EXPECT_EQ(again.Browsed, QStringList{path});
}

// Every day of the fill is computed at local noon: where the main window's hour bar stands
// when Create is pressed changes nothing, and the file equals quillmere-log create's for the
// same place (Pittsburgh, daylight saving on), record by record, with the same place and clock.
TEST(FrmSelectDB, TheFillIsTheSameWhateverTheHourBarSaysAndEqualsTheCommandLines)
{
    const auto records = [](const QString& path) {
        std::vector<std::string> lines; // a record a line, so that a difference reads as text
        for (const char* sql : {"SELECT * FROM table1 ORDER BY DBID",
                                "SELECT Latitude, Longitude, TimeZone, TzName, Clock FROM "
                                "QuillmerePlace"})
            for (const auto& row : PlainRows(path, sql)) {
                QStringList values;
                for (const QVariant& value : row)
                    values << value.toString();
                lines.push_back(values.join('|').toStdString());
            }
        return lines;
    };
    const QString cliFolder = testenv::FreshDir("fill-moment-cli");
    QProcess create;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("QUILLMERE_HOME", cliFolder);
    create.setProcessEnvironment(env);
    create.start(QUILLMERE_LOG, {"create", "--year", "2024", "--lon", "80W", "--lat", "40.44N",
                                 "--zone", "5", "--dst"});
    ASSERT_TRUE(create.waitForFinished(120000));
    ASSERT_EQ(create.exitCode(), 0) << create.readAllStandardError().toStdString();
    const auto expected = records(cliFolder + "/2024.mdb");
    ASSERT_EQ(expected.size(), 367u);

    for (const double hourBar : {0.0, 5.5, 18.25, 23.75}) {
        LogWindowEnv windows(testenv::FreshDir("fill-moment"));
        windows.Engine.Site.HourInstant = hourBar / 24.0 + windows.Engine.Site.ZoneDays;
        FrmSelectDB select(windows.Context(2024));
        ASSERT_TRUE(select.CreateDB(2024));
        const auto made = records(windows.State.DBPath);
        ASSERT_EQ(made.size(), expected.size());
        const auto differ = std::mismatch(made.begin(), made.end(), expected.begin());
        EXPECT_TRUE(differ.first == made.end()) << "hour bar at " << hourBar << ":\n"
                                                << *differ.first << "\n"
                                                << *differ.second;
    }
}

// A fill that fails keeps no file and says why; with a sound template the same window
// creates the year.
TEST(FrmSelectDB, AFailedFillKeepsNoFileAndCreateWorksAgain)
{
    LogWindowEnv env(ProgramFolderWithFiles("select-fail"));
    const QString templatePath = env.Folder + "/Default.mdb";
    const QByteArray sound = testenv::FileBytes(templatePath);
    PlainExec(templatePath, DiskFullOnJuly1);
    const QString path = env.Folder + "/2024.mdb";
    Shown w(env);
    w.Click(w.Window.CmdCreate, MsgResult::Yes);
    ASSERT_EQ(env.Messages.Shown().size(), 2u);
    const QString said = env.Messages.Shown()[1].Text;
    EXPECT_TRUE(said.contains("could not be created") && said.contains("disk is full") &&
                said.contains("No file was kept") && said.contains("Create"))
        << said.toStdString();
    EXPECT_FALSE(QFile::exists(path) || w.Listed().contains("2024.mdb"));
    EXPECT_TRUE(env.State.DBPath.isEmpty() && w.Browsed.isEmpty() && w.Window.isVisible());

    testenv::WriteFile(templatePath, sound);
    w.Click(w.Window.CmdCreate, MsgResult::Yes);
    EXPECT_EQ(CountRows(path, "table1"), 366);
    EXPECT_EQ(w.Browsed, QStringList{path});
}

// Delete asks, keeps the file on No, and on Yes takes its unfinished journal too (so that it
// cannot touch a later 2004.mdb); the deleted year stays in backups/, where Backups opens on
// it, and it can be restored as it was.
TEST(FrmSelectDB, DeleteAsksAndKeepsTheDeletedYearAmongTheBackups)
{
    LogWindowEnv env(ProgramFolderWithFiles("select-delete"));
    const QString path = env.Folder + "/2004.mdb";
    Shown w(env, 2004);
    w.Select("2004.mdb");
    w.Click(w.Window.DeleteDBFile, MsgResult::No);
    EXPECT_EQ(env.ShownTexts(), QStringList{"Confirm to Delete Selected File "});
    EXPECT_EQ(env.Messages.Shown()[0].Buttons, MsgButtons::YesNoDefaultNo);
    const QByteArray deleted = testenv::FileBytes(path);
    testenv::WriteFile(path + "-journal");
    w.Select("2004.mdb");
    w.Click(w.Window.DeleteDBFile, MsgResult::Yes);
    EXPECT_FALSE(QFile::exists(path) || QFile::exists(path + "-journal"));
    EXPECT_EQ(w.Listed(), QStringList{"2005.mdb"});
    QStringList backupsOf;
    w.Window.ShowBackups = [&backupsOf](const QString& year) { backupsOf << year; };
    QTest::mouseClick(w.Window.CmdBackups, Qt::LeftButton);
    EXPECT_EQ(backupsOf, QStringList{path});
    const auto kept = DeletedYear(env.Folder, 2004);
    ASSERT_TRUE(kept);
    ASSERT_TRUE(RestoreYearFile(env.Folder, *kept));
    EXPECT_EQ(testenv::FileBytes(path), deleted);
}

// Compacting twice keeps one backup and Repair finds the file sound; a file that is no
// database is neither compacted nor repaired, and is kept.
TEST(FrmSelectDB, CompactAndRepairSayWhatTheyDid)
{
    LogWindowEnv env(QFileInfo(MakeYearFile("select-compact")).absolutePath());
    testenv::WriteFile(env.Folder + "/2006.mdb", QByteArray(8192, 'x'));
    Shown w(env);
    for (const QString year : {"2024.mdb", "2006.mdb"}) {
        w.Select(year);
        QTest::mouseClick(w.Window.CmdCompact, Qt::LeftButton);
        QTest::mouseClick(w.Window.CmdCompact, Qt::LeftButton);
        QTest::mouseClick(w.Window.CmdRepair, Qt::LeftButton);
    }
    const QStringList texts = env.ShownTexts();
    ASSERT_EQ(texts.size(), 6);
    EXPECT_EQ(texts.mid(0, 3),
              QStringList({"Compacting Completed!", "Compacting Completed!",
                           "Repair Completed!\nThe file is sound: all 366 records are kept as they "
                           "were."}));
    EXPECT_EQ(env.Messages.Shown()[0].Title, "Compact DataBases");
    EXPECT_EQ(env.Messages.Shown()[2].Title, "Repair DataBases");
    EXPECT_EQ(texts.mid(3, 2), QStringList(2, "Error Compacting Database!"));
    EXPECT_TRUE(texts[5].startsWith("Error Repairing Database!\n") &&
                texts[5].endsWith("The file is kept as it was."))
        << texts[5].toStdString();
    EXPECT_EQ(QDir(env.Folder).entryList(QDir::Files, QDir::Name),
              QStringList({"2006.mdb", "2024.BAK", "2024.mdb", "Default.mdb"}));
    EXPECT_EQ(CountRows(env.Folder + "/2024.mdb", "table1"), DaysInYear);
    EXPECT_EQ(CountRows(env.Folder + "/2024.BAK", "table1"), DaysInYear);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

// A year that is missing while its kept copy is there is offered back on opening; Create does
// not start a new year beside the copy.
TEST(FrmSelectDB, AMissingYearWithAKeptCopyIsOfferedBackOnOpening)
{
    const QString path = MakeYearFile("select-restore");
    LogWindowEnv env(QFileInfo(path).absolutePath());
    ASSERT_TRUE(QFile::rename(path, env.Folder + "/2024.BAK"));
    {
        env.Answers = {MsgResult::No};
        FrmSelectDB w(env.Context());
        EXPECT_EQ(env.ShownTexts(), QStringList{"2024.mdb is missing, but a copy of it is kept "
                                                "as 2024.BAK.\nRestore 2024.mdb from that copy?"});
        EXPECT_EQ(w.DBFiles->count(), 0);
        env.Answers = {MsgResult::No};
        EXPECT_FALSE(w.CreateDB(2024));
        EXPECT_FALSE(QFile::exists(path));
        EXPECT_TRUE(env.ShownTexts().last().contains("2024.BAK"));
    }
    env.Answers = {MsgResult::Yes};
    FrmSelectDB w(env.Context());
    EXPECT_EQ(w.DBFiles->count(), 1);
    EXPECT_EQ(CountRows(path, "table1"), DaysInYear);
    EXPECT_TRUE(QFile::exists(env.Folder + "/2024.BAK"));
}

// Twelve changes, each backed up an hour after the last, keep the last ten copies, newest
// first; an unchanged file is not copied again, another year's copies are not counted, and
// two changes within one second get two copies. Restoring the oldest keeps the current file
// as the newest copy.
TEST(Backups, CopiesOnlyAChangedFileKeepsTheLastTenAndRestoreKeepsTheCurrentFile)
{
    const QString path = MakeYearFile("backups-rotate", 20);
    const QString other = QFileInfo(path).absolutePath() + "/2023.mdb";
    ASSERT_TRUE(QFile::copy(path, other));
    ASSERT_TRUE(BackUpIfChanged(other, Start));
    for (int i = 1; i <= 12; ++i) {
        SetTaken(path, 1, i);
        ASSERT_TRUE(BackUpIfChanged(path, Start.addSecs(3600 * i)));
    }
    ASSERT_TRUE(BackUpIfChanged(path, Start.addDays(1))); // unchanged since the last copy
    QStringList kept = ListBackups(path);
    ASSERT_EQ(kept.size(), 10);
    for (int i = 0; i < 10; ++i) { // the copies of changes 12 down to 3
        EXPECT_EQ(BackupTime(kept[i]), Start.addSecs(3600 * (12 - i)));
        EXPECT_EQ(Taken(kept[i], 1), 12 - i);
    }
    EXPECT_EQ(kept[0], QFileInfo(path).absolutePath() + "/backups/2024_2026-05-01_18-00-00.mdb");
    EXPECT_EQ(testenv::FileBytes(kept[0]), testenv::FileBytes(path));
    EXPECT_EQ(ListBackups(other).size(), 1);

    SetTaken(path, 1, 99); // the file now differs from every copy
    ASSERT_TRUE(RestoreBackup(path, kept.back(), Start.addDays(1)));
    EXPECT_EQ(Taken(path, 1), 3);
    kept = ListBackups(path);
    ASSERT_EQ(kept.size(), 10);
    EXPECT_EQ(Taken(kept[0], 1), 99); // the file as it was before the restore
    EXPECT_EQ(Taken(kept[1], 1), 12);
    EXPECT_FALSE(RestoreBackup(path, path + ".gone", Start.addDays(2)));
    EXPECT_EQ(Taken(path, 1), 3);

    for (int taken : {40, 41}) {
        SetTaken(path, 1, taken);
        ASSERT_TRUE(BackUpIfChanged(path, Start.addDays(2)));
    }
    EXPECT_EQ(Taken(ListBackups(path)[0], 1), 41);
    EXPECT_EQ(Taken(ListBackups(path)[1], 1), 40);
}

// Opening a changed year file from Database Functions backs it up; the Backups window wants a
// selection, asks, and restores the chosen copy, keeping the file it replaces.
TEST(Backups, OpeningAYearFileBacksItUpAndTheBackupsWindowRestores)
{
    LogWindowEnv env(QFileInfo(MakeYearFile("backups-window", 20)).absolutePath());
    const QString path = env.Folder + "/2024.mdb";
    for (int change = 1; change <= 2; ++change) {
        SetTaken(path, 2, change);
        FrmSelectDB select(env.Context());
        select.ShowBrowser = [](const QString&) {};
        select.DBFiles->setCurrentRow(0);
        select.OpenDBFile_Click();
    }
    ASSERT_EQ(ListBackups(path).size(), 2);
    EXPECT_EQ(testenv::FileBytes(ListBackups(path)[0]), testenv::FileBytes(path));

    SetTaken(path, 2, 77);
    FrmBackups w(env.Context(), path);
    ASSERT_EQ(w.BackupList->count(), 2);
    w.CmdRestore_Click(); // nothing selected
    w.BackupList->setCurrentRow(1);
    for (const MsgResult answer : {MsgResult::No, MsgResult::Yes}) {
        env.Answers = {answer};
        w.CmdRestore_Click();
        EXPECT_EQ(Taken(path, 2), answer == MsgResult::No ? 77 : 1);
    }
    EXPECT_EQ(w.BackupList->count(), 3);
    const QStringList texts = env.ShownTexts();
    ASSERT_EQ(texts.size(), 4) << texts.join("|").toStdString();
    EXPECT_EQ(texts[0], "No Backup Selected! ");
    EXPECT_TRUE(texts[1].startsWith("Restore 2024.mdb as it was on ")) << texts[1].toStdString();
    EXPECT_TRUE(texts[3].startsWith("2024.mdb now holds the copy of ")) << texts[3].toStdString();
    w.show();
    Screenshot(w, "frmbackups");
}

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
