// SPDX-License-Identifier: GPL-3.0-or-later
// "Database Functions" offscreen on real folders: the file list, the messages, creating and
// filling a year, deleting, compacting and repairing, and the browser it opens.
#include "logdb/logfiles.h"
#include "support/filledyear.h"
#include "support/logfixture.h"
#include "support/testenv.h"
#include "ui/log/frmselectdb.h"
#include "ui/log/frmtable1.h"
#include "ui/log/logwindowenv.h"

#include <QFile>
#include <QListWidget>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>

using namespace logtest;

namespace {

// A program folder with the template, the city database and two year files.
QString ProgramFolderWithFiles(const QString& name)
{
    const QString folder = testenv::FreshDir(name);
    EXPECT_TRUE(CreateTemplateFile(QDir(folder).filePath("Default.mdb")));
    EXPECT_TRUE(
        QFile::copy(QDir(folder).filePath("Default.mdb"), QDir(folder).filePath("Encdb.MDB")));
    for (int year : {2004, 2005})
        EXPECT_EQ(CreateYearFile(folder, year).Outcome, CreateYearResult::Status::Created);
    return folder;
}

QStringList Listed(const FrmSelectDB& w)
{
    QStringList names;
    for (int i = 0; i < w.DBFiles->count(); ++i)
        names << w.DBFiles->item(i)->text();
    return names;
}

void Select(FrmSelectDB& w, const QString& name)
{
    const auto items = w.DBFiles->findItems(name, Qt::MatchExactly);
    ASSERT_EQ(items.size(), 1);
    QTest::mouseClick(w.DBFiles->viewport(), Qt::LeftButton, {},
                      w.DBFiles->visualItemRect(items[0]).center());
}

// The window shown, with the browser it would open recorded instead of shown.
struct Opened {
    QStringList Browsed;
    explicit Opened(FrmSelectDB& w) { Watch(w); }
    void Watch(FrmSelectDB& w)
    {
        w.ShowBrowser = [this](const QString& path) { Browsed << path; };
        w.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&w));
    }
};

} // namespace

TEST(FrmSelectDB, ListsOnlyYearFilesWithItsCaptionsAndTips)
{
    LogWindowEnv env(ProgramFolderWithFiles("select-list"));
    FrmSelectDB w(env.Context());
    EXPECT_EQ(w.windowTitle(), "Database Functions");
    EXPECT_EQ(Listed(w), QStringList({"2004.mdb", "2005.mdb"}));
    EXPECT_EQ(w.DBFiles->toolTip(), " DoubleClick on Year of Interest ");
    const std::vector<std::tuple<QPushButton*, const char*, const char*>> buttons = {
        {w.OpenDBFile, "Open", " Open Selected File "},
        {w.CmdCreate, "Create", ""},
        {w.DeleteDBFile, "Delete", " Delete Selected File "},
        {w.CmdCompact, "Compact", ""},
        {w.CmdRepair, "Repair", ""},
        {w.CloseSelectDB, "Close", " Close and Exit "}};
    for (const auto& [button, caption, tip] : buttons) {
        EXPECT_EQ(button->text(), caption);
        EXPECT_EQ(button->toolTip(), tip);
    }
    EXPECT_TRUE(w.OpenDBFile->isEnabled());
    EXPECT_TRUE(w.PBar1->isHidden());
    Screenshot(w, "FrmSelectDB");
}

TEST(FrmSelectDB, EveryFileButtonWantsASelectionFirst)
{
    LogWindowEnv env(ProgramFolderWithFiles("select-none"));
    FrmSelectDB w(env.Context());
    Opened opened(w);
    for (QPushButton* b : {w.OpenDBFile, w.DeleteDBFile, w.CmdCompact, w.CmdRepair})
        QTest::mouseClick(b, Qt::LeftButton);
    ASSERT_EQ(env.Messages.Shown().size(), 4u);
    for (const ShownMessage& m : env.Messages.Shown()) {
        EXPECT_EQ(m.Text, "No File Selected! ");
        EXPECT_EQ(m.Buttons, MsgButtons::OKCancel);
    }
    EXPECT_TRUE(w.isVisible());
    EXPECT_TRUE(opened.Browsed.isEmpty());
    EXPECT_EQ(Listed(w).size(), 2);
    EXPECT_TRUE(env.State.DBPath.isEmpty());
}

TEST(FrmSelectDB, AClickSelectsAndADoubleClickOpensTheBrowser)
{
    LogWindowEnv env(ProgramFolderWithFiles("select-open"));
    FrmSelectDB w(env.Context());
    Opened opened(w);
    Select(w, "2005.mdb");
    EXPECT_EQ(env.State.DBPath, QDir(env.Folder).filePath("2005.mdb"));
    EXPECT_TRUE(opened.Browsed.isEmpty());
    const auto item = w.DBFiles->findItems("2004.mdb", Qt::MatchExactly)[0];
    const QPoint at = w.DBFiles->visualItemRect(item).center();
    QTest::mouseClick(w.DBFiles->viewport(), Qt::LeftButton, {}, at);
    QTest::mouseDClick(w.DBFiles->viewport(), Qt::LeftButton, {}, at);
    EXPECT_EQ(opened.Browsed, QStringList{QDir(env.Folder).filePath("2004.mdb")});
    EXPECT_FALSE(w.isVisible());
}

TEST(FrmSelectDB, CreateFillsTheShownYearAndLeavesAnExistingOneAlone)
{
    LogWindowEnv env(ProgramFolderWithFiles("select-create"));
    const QString path = QDir(env.Folder).filePath("2024.mdb");
    {
        FrmSelectDB w(env.Context(2024));
        Opened opened(w);
        env.Answers = {MsgResult::Yes};
        QTest::mouseClick(w.CmdCreate, Qt::LeftButton);
        EXPECT_EQ(env.ShownTexts(), QStringList{"Create DataBase for 2024"});
        EXPECT_EQ(env.Messages.Shown()[0].Buttons, MsgButtons::YesNo);
        EXPECT_EQ(CountRows(path, "table1"), 366);
        EXPECT_EQ(env.State.DBPath, path);
        EXPECT_EQ(opened.Browsed, QStringList{path});
        EXPECT_FALSE(w.isVisible());
        EXPECT_TRUE(w.PBar1->isHidden());
        EXPECT_EQ(w.PBar1->maximum(), 366);
        EXPECT_EQ(w.PBar1->value(), 366);
        EXPECT_TRUE(Listed(w).contains("2024.mdb"));
    }
    // The angler's entry in the existing file stays; nothing is filled again.
    {
        Database db;
        ASSERT_TRUE(db.Open(path));
        ASSERT_TRUE(db.UpdateRecord({"table1"}, "DBID", 10, {{"Notes", "pike"}}));
    }
    const QByteArray before = testenv::FileBytes(path);
    FrmSelectDB again(env.Context(2024));
    Opened opened(again);
    env.Answers = {MsgResult::Yes};
    QTest::mouseClick(again.CmdCreate, Qt::LeftButton);
    EXPECT_EQ(env.ShownTexts().mid(1),
              QStringList({"Create DataBase for 2024", "DataBase already exists for 2024"}));
    EXPECT_EQ(env.Messages.Shown().back().Buttons, MsgButtons::OKCancel);
    EXPECT_EQ(testenv::FileBytes(path), before);
    EXPECT_EQ(opened.Browsed, QStringList{path});
}

// Every day of the fill is computed at local noon: where the main window's hour bar stands
// when Create is pressed changes nothing, and the file equals quillmere-log create's for the
// same place (Pittsburgh, daylight saving on), record by record.
TEST(FrmSelectDB, TheFillIsTheSameWhateverTheHourBarSaysAndEqualsTheCommandLines)
{
    // Each record as one line of its values, so that a difference reads as text.
    const auto records = [](const QString& path) {
        std::vector<std::string> lines;
        for (const auto& row : PlainRows(path, "SELECT * FROM table1 ORDER BY DBID")) {
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
    const auto expected = records(QDir(cliFolder).filePath("2024.mdb"));
    ASSERT_EQ(expected.size(), 366u);

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
        // Both files record the same place and clock.
        const auto place = [](const QString& path) {
            return PlainRows(path, "SELECT Latitude, Longitude, TimeZone, TzName, Clock FROM "
                                   "QuillmerePlace");
        };
        EXPECT_EQ(place(windows.State.DBPath), place(QDir(cliFolder).filePath("2024.mdb")));
        EXPECT_EQ(place(windows.State.DBPath).size(), 1u);
    }
}

TEST(FrmSelectDB, AnsweringNoCreatesNothingAndBrowsesOnlyAnExistingFile)
{
    LogWindowEnv env(ProgramFolderWithFiles("select-no"));
    FrmSelectDB w(env.Context(2024));
    Opened opened(w);
    env.Answers = {MsgResult::No};
    QTest::mouseClick(w.CmdCreate, Qt::LeftButton);
    EXPECT_FALSE(QFile::exists(QDir(env.Folder).filePath("2024.mdb")));
    EXPECT_FALSE(w.isVisible());
    EXPECT_TRUE(opened.Browsed.isEmpty()); // no year file chosen yet

    FrmSelectDB chosen(env.Context(2024));
    opened.Watch(chosen);
    Select(chosen, "2004.mdb");
    env.Answers = {MsgResult::No};
    QTest::mouseClick(chosen.CmdCreate, Qt::LeftButton);
    EXPECT_EQ(opened.Browsed, QStringList{QDir(env.Folder).filePath("2004.mdb")});
}

TEST(FrmSelectDB, AFailedFillKeepsNoFileAndCreateWorksAgain)
{
    LogWindowEnv env(ProgramFolderWithFiles("select-fail"));
    const QString templatePath = QDir(env.Folder).filePath("Default.mdb");
    const QByteArray sound = testenv::FileBytes(templatePath);
    PlainExec(templatePath, DiskFullOnJuly1);
    const QString path = QDir(env.Folder).filePath("2024.mdb");
    FrmSelectDB w(env.Context(2024));
    Opened opened(w);
    env.Answers = {MsgResult::Yes};
    QTest::mouseClick(w.CmdCreate, Qt::LeftButton);
    ASSERT_EQ(env.Messages.Shown().size(), 2u);
    const QString said = env.Messages.Shown()[1].Text;
    EXPECT_TRUE(said.contains("could not be created") && said.contains("disk is full") &&
                said.contains("No file was kept") && said.contains("Create"))
        << said.toStdString();
    EXPECT_FALSE(QFile::exists(path));
    EXPECT_TRUE(env.State.DBPath.isEmpty());
    EXPECT_TRUE(w.isVisible());
    EXPECT_TRUE(opened.Browsed.isEmpty());
    EXPECT_FALSE(Listed(w).contains("2024.mdb"));

    // With a sound template the same window creates the year.
    testenv::WriteFile(templatePath, sound);
    env.Answers = {MsgResult::Yes};
    QTest::mouseClick(w.CmdCreate, Qt::LeftButton);
    EXPECT_EQ(CountRows(path, "table1"), 366);
    EXPECT_EQ(opened.Browsed, QStringList{path});
}

TEST(FrmSelectDB, DeleteAsksAndKeepsTheFileOnNo)
{
    LogWindowEnv env(ProgramFolderWithFiles("select-delete"));
    FrmSelectDB w(env.Context(2004));
    Opened opened(w);
    Select(w, "2004.mdb");
    env.Answers = {MsgResult::No};
    QTest::mouseClick(w.DeleteDBFile, Qt::LeftButton);
    EXPECT_EQ(env.ShownTexts(), QStringList{"Confirm to Delete Selected File "});
    EXPECT_EQ(env.Messages.Shown()[0].Buttons, MsgButtons::YesNoDefaultNo);
    EXPECT_TRUE(QFile::exists(QDir(env.Folder).filePath("2004.mdb")));
    const QByteArray deleted = testenv::FileBytes(QDir(env.Folder).filePath("2004.mdb"));
    Select(w, "2004.mdb");
    // An unfinished journal goes with its file, so that it cannot touch a later 2004.mdb.
    const QString journal = QDir(env.Folder).filePath("2004.mdb-journal");
    testenv::WriteFile(journal);
    env.Answers = {MsgResult::Yes};
    QTest::mouseClick(w.DeleteDBFile, Qt::LeftButton);
    EXPECT_FALSE(QFile::exists(QDir(env.Folder).filePath("2004.mdb")));
    EXPECT_FALSE(QFile::exists(journal));
    EXPECT_EQ(Listed(w), QStringList{"2005.mdb"});
    // The deleted year stays in backups/: Backups opens on it with nothing selected, and it
    // can be restored as it was.
    QStringList backupsOf;
    w.ShowBackups = [&backupsOf](const QString& path) { backupsOf << path; };
    QTest::mouseClick(w.CmdBackups, Qt::LeftButton);
    EXPECT_EQ(backupsOf, QStringList{QDir(env.Folder).filePath("2004.mdb")});
    const auto kept = DeletedYear(env.Folder, 2004);
    ASSERT_TRUE(kept);
    ASSERT_TRUE(RestoreYearFile(env.Folder, *kept));
    EXPECT_EQ(testenv::FileBytes(QDir(env.Folder).filePath("2004.mdb")), deleted);
    EXPECT_TRUE(QFile::exists(kept->Copy));
}

TEST(FrmSelectDB, CompactingTwiceKeepsOneBackupAndRepairSaysSo)
{
    LogWindowEnv env(QString{});
    const QString path = MakeYearFile("select-compact");
    env.Folder = QFileInfo(path).absolutePath();
    FrmSelectDB w(env.Context());
    Opened opened(w);
    Select(w, "2024.mdb");
    QTest::mouseClick(w.CmdCompact, Qt::LeftButton);
    QTest::mouseClick(w.CmdCompact, Qt::LeftButton);
    QTest::mouseClick(w.CmdRepair, Qt::LeftButton);
    ASSERT_EQ(env.ShownTexts().size(), 3);
    EXPECT_EQ(env.ShownTexts().mid(0, 2),
              QStringList({"Compacting Completed!", "Compacting Completed!"}));
    EXPECT_EQ(env.ShownTexts()[2],
              "Repair Completed!\nThe file is sound: all 366 records are kept as they were.");
    EXPECT_EQ(env.Messages.Shown()[0].Title, "Compact DataBases");
    EXPECT_EQ(env.Messages.Shown()[2].Title, "Repair DataBases");
    EXPECT_EQ(QDir(env.Folder).entryList(QDir::Files, QDir::Name),
              QStringList({"2024.BAK", "2024.mdb", "Default.mdb"}));
    EXPECT_EQ(CountRows(path, "table1"), DaysInYear);
    EXPECT_EQ(CountRows(QDir(env.Folder).filePath("2024.BAK"), "table1"), DaysInYear);
}

TEST(FrmSelectDB, AFileThatIsNoDatabaseCannotBeCompactedOrRepaired)
{
    LogWindowEnv env(ProgramFolderWithFiles("select-broken"));
    const QString path = QDir(env.Folder).filePath("2006.mdb");
    testenv::WriteFile(path, QByteArray(8192, 'x'));
    FrmSelectDB w(env.Context());
    Opened opened(w);
    Select(w, "2006.mdb");
    QTest::mouseClick(w.CmdCompact, Qt::LeftButton);
    QTest::mouseClick(w.CmdRepair, Qt::LeftButton);
    ASSERT_EQ(env.ShownTexts().size(), 2);
    EXPECT_EQ(env.ShownTexts()[0], "Error Compacting Database!");
    EXPECT_TRUE(env.ShownTexts()[1].startsWith("Error Repairing Database!\n"));
    EXPECT_TRUE(env.ShownTexts()[1].endsWith("The file is kept as it was."));
    EXPECT_TRUE(QFile::exists(path));
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(FrmSelectDB, AMissingYearWithAKeptCopyIsOfferedBackOnOpening)
{
    LogWindowEnv env(QString{});
    const QString path = MakeYearFile("select-restore");
    env.Folder = QFileInfo(path).absolutePath();
    ASSERT_TRUE(QFile::rename(path, QDir(env.Folder).filePath("2024.BAK")));
    {
        env.Answers = {MsgResult::No};
        FrmSelectDB w(env.Context());
        ASSERT_EQ(env.ShownTexts().size(), 1);
        EXPECT_EQ(env.ShownTexts()[0], "2024.mdb is missing, but a copy of it is kept as "
                                       "2024.BAK.\nRestore 2024.mdb from that copy?");
        EXPECT_TRUE(Listed(w).isEmpty());
        // Create does not start a new year beside the copy.
        env.Answers = {MsgResult::No};
        EXPECT_FALSE(w.CreateDB(2024));
        EXPECT_FALSE(QFile::exists(path));
        EXPECT_TRUE(env.ShownTexts().last().contains("2024.BAK"))
            << env.ShownTexts().last().toStdString();
    }
    env.Answers = {MsgResult::Yes};
    FrmSelectDB w(env.Context());
    EXPECT_EQ(Listed(w), QStringList{"2024.mdb"});
    EXPECT_EQ(CountRows(path, "table1"), DaysInYear);
    EXPECT_TRUE(QFile::exists(QDir(env.Folder).filePath("2024.BAK")));
}
