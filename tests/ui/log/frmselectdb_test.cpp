// SPDX-License-Identifier: GPL-3.0-or-later
// "Database Functions" offscreen on real folders: the file list, creating and filling a year,
// deleting, compacting, repairing, the backups and the Backups window, and importing, checked
// by asking the files in plain SQL.
#include "logdb/backups.h"
#include "logdb/logfiles.h"
#include "ui/log/frmbackups.h"
#include "ui/log/frmselectdb.h"
#include "ui/log/logdata.h"
#include "ui/log/logwindowenv.h"

#include <QProcess>
#include <QProgressBar>

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

// TotalTaken of record 2, asked of the file in plain SQL.
int Taken(const QString& path)
{
    return PlainColumn(path, "SELECT TotalTaken FROM table1 WHERE DBID = 2").at(0).toInt();
}

// The catch columns of a day, asked of the file, "<null>" for an empty one.
QString Entry(const QString& path, const QString& date)
{
    return PlainColumn(path, "SELECT ifnull(TotalTaken, '<null>') || '|' || ifnull(TakenWith, "
                             "'<null>') || '|' || ifnull(PeakTime, '<null>') || '|' || "
                             "ifnull(Notes, '<null>') FROM table1 WHERE JulianDate = '" +
                                 date + "'")
        .at(0)
        .toString();
}

} // namespace

// Only year files are listed and every file button wants a selection first. Compacting twice
// keeps one copy and Repair finds the file sound; a file that is no database is neither
// compacted nor repaired, and is kept. Delete asks, keeps the file on No, and on Yes takes its
// unfinished journal too (so that it cannot touch a later 2004.mdb); the deleted year stays in
// backups/, where Backups opens. A click selects and a double click opens the browser.
TEST(FrmSelectDB, ListsCompactsRepairsDeletesAndOpensTheSelectedYear)
{
    LogWindowEnv env(ProgramFolderWithFiles("select-open"));
    testenv::WriteFile(env.Folder + "/2006.mdb", QByteArray(8192, 'x'));
    ASSERT_TRUE(QFile::remove(env.Folder + "/2005.mdb")); // a filled year in its place
    ASSERT_TRUE(QFile::copy(MakeYearFile("select-open-filled"), env.Folder + "/2005.mdb"));
    Shown w(env, 2004); // Backups opens on the shown year when no file is selected
    EXPECT_EQ(w.Listed(), QStringList({"2004.mdb", "2005.mdb", "2006.mdb"}));
    for (QPushButton* b :
         {w.Window.OpenDBFile, w.Window.DeleteDBFile, w.Window.CmdCompact, w.Window.CmdRepair})
        w.Click(b);
    EXPECT_EQ(env.Messages.Shown()[0].Buttons, MsgButtons::OKCancel);
    EXPECT_TRUE(env.State.DBPath.isEmpty());
    for (const QString year : {"2005.mdb", "2006.mdb"}) {
        w.Select(year);
        for (QPushButton* button : {w.Window.CmdCompact, w.Window.CmdCompact, w.Window.CmdRepair})
            QTest::mouseClick(button, Qt::LeftButton);
    }
    EXPECT_EQ(env.State.DBPath, env.Folder + "/2006.mdb");
    EXPECT_EQ(
        QDir(env.Folder).entryList({"*.mdb", "*.BAK"}, QDir::Files, QDir::Name),
        QStringList({"2004.mdb", "2005.BAK", "2005.mdb", "2006.mdb", "Default.mdb", "Encdb.MDB"}));
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    const QString path = env.Folder + "/2004.mdb";
    const QByteArray deleted = testenv::FileBytes(path);
    testenv::WriteFile(path + "-journal");
    for (const MsgResult answer : {MsgResult::No, MsgResult::Yes}) {
        w.Select("2004.mdb");
        w.Click(w.Window.DeleteDBFile, answer);
        EXPECT_EQ(QFile::exists(path), answer == MsgResult::No);
    }
    EXPECT_EQ(env.Messages.Shown().back().Buttons, MsgButtons::YesNoDefaultNo);
    QStringList texts = env.ShownTexts(), said;
    for (const QStringList& row : DataRows("file_button_messages.txt", '\t'))
        said << row[0];
    const QString repair = texts.takeAt(9); // of the file that is no database
    EXPECT_TRUE(repair.startsWith("Error Repairing Database!\n") &&
                repair.endsWith("The file is kept as it was."))
        << repair.toStdString();
    EXPECT_EQ(texts.join('|').toStdString(), said.join('|').toStdString());
    EXPECT_FALSE(QFile::exists(path + "-journal"));
    EXPECT_EQ(w.Listed(), QStringList({"2005.mdb", "2006.mdb"}));
    QStringList backupsOf;
    w.Window.ShowBackups = [&backupsOf](const QString& year) { backupsOf << year; };
    QTest::mouseClick(w.Window.CmdBackups, Qt::LeftButton);
    EXPECT_EQ(backupsOf, QStringList{path});
    const auto kept = DeletedYear(env.Folder, 2004);
    ASSERT_TRUE(kept && RestoreYearFile(env.Folder, *kept));
    EXPECT_EQ(testenv::FileBytes(path), deleted);

    EXPECT_TRUE(w.Browsed.isEmpty() && w.Window.isVisible());
    w.Select("2005.mdb", true);
    EXPECT_EQ(w.Browsed, QStringList{env.Folder + "/2005.mdb"});
    EXPECT_FALSE(w.Window.isVisible());
}

// Create asks for the shown year and fills it; asked again, it leaves the angler's entries
// alone and browses the file. Answered No it creates nothing; a fill that fails keeps no file
// and says why.
TEST(FrmSelectDB, CreateFillsTheShownYearOnceAndNoOrAFailureCreatesNothing)
{
    LogWindowEnv env(ProgramFolderWithFiles("select-create"));
    const QString path = env.Folder + "/2024.mdb";
    {
        Shown no(env);
        no.Click(no.Window.CmdCreate, MsgResult::No);
        EXPECT_FALSE(QFile::exists(path) || no.Window.isVisible() || !no.Browsed.isEmpty());
    }
    const QString templatePath = env.Folder + "/Default.mdb";
    const QByteArray sound = testenv::FileBytes(templatePath);
    PlainExec(templatePath, DiskFullOnJuly1);
    Shown w(env);
    w.Click(w.Window.CmdCreate, MsgResult::Yes);
    const QString said = env.ShownTexts().last();
    EXPECT_TRUE(said.contains("disk is full") && said.contains("No file was kept"))
        << said.toStdString();
    EXPECT_FALSE(QFile::exists(path) || w.Listed().contains("2024.mdb"));
    EXPECT_TRUE(env.State.DBPath.isEmpty() && w.Browsed.isEmpty() && w.Window.isVisible());
    testenv::WriteFile(templatePath, sound);
    w.Click(w.Window.CmdCreate, MsgResult::Yes);
    EXPECT_EQ(env.ShownTexts().last(), "Create DataBase for 2024");
    EXPECT_EQ(CountRows(path, "table1"), 366);
    EXPECT_TRUE(env.State.DBPath == path && w.Browsed == QStringList{path});
    EXPECT_TRUE(!w.Window.isVisible() && w.Window.PBar1->isHidden());

    PlainExec(path, "UPDATE table1 SET Notes = 'pike' WHERE DBID = 10");
    const QByteArray before = testenv::FileBytes(path);
    Shown again(env);
    again.Click(again.Window.CmdCreate, MsgResult::Yes);
    EXPECT_EQ(env.ShownTexts().last(), "DataBase already exists for 2024");
    EXPECT_TRUE(testenv::FileBytes(path) == before && again.Browsed == QStringList{path});
}

// Every day of the fill is computed at local noon: where the main window's hour bar stands
// when Create is pressed changes nothing, and the file equals quillmere-log create's for the
// same place (Pittsburgh, daylight saving on), record by record, with the same place and clock.
TEST(FrmSelectDB, TheFillIsTheSameWhateverTheHourBarSaysAndEqualsTheCommandLines)
{
    const auto records = [](const QString& path) {
        return std::pair(PlainRows(path, "SELECT * FROM table1 ORDER BY DBID"),
                         PlainRows(path, "SELECT Latitude, Longitude, TimeZone, TzName, Clock "
                                         "FROM QuillmerePlace"));
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
    ASSERT_EQ(expected.first.size(), 366u);
    for (const double hourBar : {0.0, 5.5, 18.25, 23.75}) {
        LogWindowEnv windows(testenv::FreshDir("fill-moment"));
        windows.Engine.Site.HourInstant = hourBar / 24.0 + windows.Engine.Site.ZoneDays;
        FrmSelectDB select(windows.Context(2024));
        ASSERT_TRUE(select.CreateDB(2024));
        EXPECT_TRUE(records(windows.State.DBPath) == expected) << "hour bar at " << hourBar;
    }
}

// Opening a changed year file from Database Functions backs it up; the Backups window
// restores the chosen copy and keeps the file it replaces.
TEST(Backups, OpeningAChangedYearBacksItUpAndTheBackupsWindowRestores)
{
    LogWindowEnv env(QFileInfo(MakeYearFile("backups-window", 20)).absolutePath());
    const QString path = env.Folder + "/2024.mdb";
    FrmSelectDB select(env.Context());
    select.ShowBrowser = [](const QString&) {};
    select.DBFiles->setCurrentRow(0);
    select.OpenDBFile_Click();
    select.OpenDBFile_Click(); // unchanged: no second copy
    ASSERT_EQ(ListBackups(path).size(), 1);
    PlainExec(path, "UPDATE table1 SET TotalTaken = 77 WHERE DBID = 2");
    FrmBackups w(env.Context(), path);
    w.BackupList->setCurrentRow(0);
    env.Answers = {MsgResult::Yes};
    w.CmdRestore_Click();
    EXPECT_EQ(Taken(path), 0);
    EXPECT_EQ(Taken(ListBackups(path)[0]), 77);
    EXPECT_TRUE(env.ShownTexts().last().startsWith("2024.mdb now holds the copy of "))
        << env.ShownTexts().join("|").toStdString();
    Screenshot(w, "frmbackups");
}

// Database Functions wants a selected file, names every bad row by its line and offers the
// choice, then imports after a backup of the file as it was: No keeps the entry a day already
// holds. Export then writes the year with the imported entries.
TEST(LogImport, DatabaseFunctionsShowsTheProblemsThenImportsAfterABackupAndExports)
{
    const QString path = MakeYearFileWithEntries("import-window", {{11, {{"TotalTaken", 1}}}});
    LogWindowEnv env(QFileInfo(path).absolutePath());
    FrmSelectDB w(env.Context());
    w.ChooseImportFile = [] { return QStringLiteral(QUILLMERE_LOG_DATA "/every_kind_of_row.csv"); };
    w.CmdImport_Click(); // nothing selected
    w.DBFiles->setCurrentRow(0);
    env.Answers = {MsgResult::Cancel};
    w.CmdImport_Click();
    EXPECT_TRUE(ListBackups(path).isEmpty());
    env.Answers = {MsgResult::No};
    w.CmdImport_Click();
    QStringList issues;
    for (const QStringList& row : DataRows("import_issues.txt", '\t'))
        issues << row[0];
    const QString plan = "3 day(s) can be imported into 2024.mdb.\n\n" + issues.join('\n') +
                         "\n\n1 of these days already hold an entry. Yes overwrites those "
                         "entries, No keeps them and imports the rest, Cancel imports nothing.";
    EXPECT_EQ(env.ShownTexts(), QStringList({"No File Selected! ", plan, plan,
                                             "2 day(s) of 2024.mdb now hold the imported "
                                             "entries."}));
    for (const QStringList& day : DataRows("imported_entries.txt", '\t'))
        EXPECT_EQ(Entry(path, day[0]), day[1]) << day[0].toStdString();
    ASSERT_EQ(ListBackups(path).size(), 1); // the file as it was before the import
    EXPECT_EQ(Entry(ListBackups(path)[0], "2024-01-05"), "<null>|<null>|<null>|<null>");
    w.ChooseExportFile = [&] { return env.Folder + "/out.csv"; };
    w.CmdExport_Click();
    EXPECT_TRUE(env.ShownTexts().last().startsWith("366 day(s) and 0 catch(es)"));
    EXPECT_TRUE(testenv::FileBytes(env.Folder + "/out.csv").contains(",\"clear, calm\","));
    Screenshot(w, "FrmSelectDB");
}
