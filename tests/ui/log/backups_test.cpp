// SPDX-License-Identifier: GPL-3.0-or-later
// Backups of the year files on real files: a copy only when the file changed, ten kept per
// year, restoring that keeps the current file, and the windows that make and restore them.
#include "logdb/backups.h"
#include "ui/log/frmbackups.h"
#include "ui/log/frmselectdb.h"
#include "ui/log/logwindowenv.h"

using namespace logtest;

namespace {

const QDateTime Start(QDate(2026, 5, 1), QTime(6, 0));

void SetTaken(const QString& path, int dbid, int taken)
{
    Database db;
    ASSERT_TRUE(db.Open(path));
    ASSERT_TRUE(db.UpdateRecord({"table1"}, "DBID", dbid, {{"TotalTaken", taken}}));
}

// TotalTaken of a record, asked of the file in plain SQL.
int Taken(const QString& path, int dbid)
{
    const QString sql = QString("SELECT TotalTaken FROM table1 WHERE DBID = %1").arg(dbid);
    return PlainColumn(path, sql).at(0).toInt();
}

// Twelve changes to the year file, each followed by a backup an hour later than the last.
void TwelveChangesBackedUp(const QString& path)
{
    for (int i = 1; i <= 12; ++i) {
        SetTaken(path, 1, i);
        ASSERT_TRUE(BackUpIfChanged(path, Start.addSecs(3600 * i)));
    }
}

} // namespace

TEST(Backups, CopiesOnlyAChangedFileAndKeepsTheLastTenOfEachYear)
{
    const QString path = MakeYearFile("backups-rotate", 20);
    const QString other = QFileInfo(path).absolutePath() + "/2023.mdb";
    ASSERT_TRUE(QFile::copy(path, other));
    ASSERT_TRUE(BackUpIfChanged(other, Start));
    TwelveChangesBackedUp(path);
    ASSERT_TRUE(BackUpIfChanged(path, Start.addDays(1))); // unchanged since the last copy

    const QStringList kept = ListBackups(path);
    ASSERT_EQ(kept.size(), 10);
    for (int i = 0; i < 10; ++i) { // newest first: the copies of changes 12 down to 3
        EXPECT_EQ(BackupTime(kept[i]), Start.addSecs(3600 * (12 - i)));
        EXPECT_EQ(Taken(kept[i], 1), 12 - i);
    }
    EXPECT_EQ(QFileInfo(kept[0]).fileName(), "2024_2026-05-01_18-00-00.mdb");
    EXPECT_EQ(QFileInfo(kept[0]).absolutePath(), QFileInfo(path).absolutePath() + "/backups");
    EXPECT_EQ(testenv::FileBytes(kept[0]), testenv::FileBytes(path));
    EXPECT_EQ(ListBackups(other).size(), 1); // another year's copies are not counted or pruned

    // Two changes within one second get two copies.
    SetTaken(path, 1, 40);
    ASSERT_TRUE(BackUpIfChanged(path, Start.addDays(2)));
    SetTaken(path, 1, 41);
    ASSERT_TRUE(BackUpIfChanged(path, Start.addDays(2)));
    EXPECT_EQ(Taken(ListBackups(path)[0], 1), 41);
    EXPECT_EQ(Taken(ListBackups(path)[1], 1), 40);
}

TEST(Backups, RestoreKeepsTheCurrentFileEvenWhenRestoringTheOldestOfTen)
{
    const QString path = MakeYearFile("backups-restore", 20);
    TwelveChangesBackedUp(path);
    SetTaken(path, 1, 99); // the file now differs from every copy
    const QString oldest = ListBackups(path).back();
    ASSERT_EQ(Taken(oldest, 1), 3);

    ASSERT_TRUE(RestoreBackup(path, oldest, Start.addDays(1)));
    EXPECT_EQ(Taken(path, 1), 3);
    const QStringList kept = ListBackups(path);
    ASSERT_EQ(kept.size(), 10);
    EXPECT_EQ(Taken(kept[0], 1), 99); // the file as it was before the restore
    EXPECT_EQ(Taken(kept[1], 1), 12);

    const DbResult missing = RestoreBackup(path, path + ".gone", Start.addDays(2));
    EXPECT_FALSE(missing);
    EXPECT_EQ(Taken(path, 1), 3);
}

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
    EXPECT_EQ(w.windowTitle(), "Backups");
    ASSERT_EQ(w.BackupList->count(), 2);
    w.CmdRestore_Click(); // nothing selected
    w.BackupList->setCurrentRow(1);
    env.Answers = {MsgResult::No};
    w.CmdRestore_Click();
    EXPECT_EQ(Taken(path, 2), 77);
    env.Answers = {MsgResult::Yes};
    w.CmdRestore_Click();
    EXPECT_EQ(Taken(path, 2), 1);
    EXPECT_EQ(w.BackupList->count(), 3);
    const QStringList texts = env.ShownTexts();
    ASSERT_EQ(texts.size(), 4) << texts.join("|").toStdString();
    EXPECT_EQ(texts[0], "No Backup Selected! ");
    EXPECT_TRUE(texts[1].startsWith("Restore 2024.mdb as it was on ")) << texts[1].toStdString();
    EXPECT_TRUE(texts[3].startsWith("2024.mdb now holds the copy of ")) << texts[3].toStdString();
    w.show();
    Screenshot(w, "frmbackups");
}
