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

} // namespace

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
