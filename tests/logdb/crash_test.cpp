// SPDX-License-Identifier: GPL-3.0-or-later
// Crash safety of the log's files: a child process runs the real create, compact and save
// code and is killed with SIGKILL at many points; the folder must then hold no year file or a
// whole one with every saved entry, and the program must open it.
#include "db/database.h"
#include "logdb/backups.h"
#include "logdb/catches.h"
#include "logdb/logfiles.h"
#include "support/filledyear.h"
#include "support/logfixture.h"
#include "support/testenv.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <iostream>

using namespace logtest;

namespace {

struct ChildEnd {
    bool Killed = false; // died by SIGKILL, not by finishing
    int ExitCode = 0;
    qint64 TookUs = 0; // from its "ready" to its end
};

// Runs the child to its end, or kills it `killAfterUs` microseconds after it said "ready".
ChildEnd RunChild(const QStringList& args, qint64 killAfterUs = -1)
{
    QProcess child;
    child.start(QStringLiteral(LOGCRASH_CHILD), args);
    EXPECT_TRUE(child.waitForStarted());
    EXPECT_TRUE(child.waitForReadyRead(30000));
    QElapsedTimer clock;
    clock.start();
    if (killAfterUs >= 0) {
        while (clock.nsecsElapsed() / 1000 < killAfterUs && child.state() == QProcess::Running) {
        }
        child.kill();
    }
    EXPECT_TRUE(child.waitForFinished(120000));
    return {child.exitStatus() == QProcess::CrashExit, child.exitCode(),
            clock.nsecsElapsed() / 1000};
}

// Runs the child dying by itself at each of its kill points (`args(kill)` gives its arguments),
// then once to its end without one, then `randomKills` times killed at moments nobody chose
// within that run's length; `check` looks at what each run left.
void KilledAtEveryPoint(const std::vector<QStringList>& kills, const QStringList& noKill,
                        int randomKills, const std::function<QStringList(const QStringList&)>& args,
                        const std::function<void(const ChildEnd&, const std::string&)>& check)
{
    for (const QStringList& kill : kills) {
        const ChildEnd end = RunChild(args(kill));
        EXPECT_TRUE(end.Killed) << kill.join(' ').toStdString();
        check(end, "at " + kill.join(' ').toStdString());
    }
    qint64 whole = 0;
    for (int i = 0; i <= randomKills; ++i) {
        const qint64 us = i == 0 ? -1 : QRandomGenerator::global()->bounded(whole + 1);
        const ChildEnd end = RunChild(args(noKill), us);
        whole = i == 0 ? end.TookUs : whole;
        check(end, i == 0 ? "unkilled" : "killed after " + std::to_string(us) + " us");
    }
}

// Empties the folder but for a copy of `made` as its year file.
QString FreshCopy(const QString& made, const QString& folder)
{
    for (const QString& file : QDir(folder).entryList(QDir::Files))
        QFile::remove(QDir(folder).filePath(file));
    const QString path = QDir(folder).filePath("2024.mdb");
    EXPECT_TRUE(QFile::copy(made, path));
    return path;
}

// The year file, when there is one, is whole: sound, every day in it, and it opens in the
// browser's data control. Returns whether there is one.
bool CheckYearFileWholeOrAbsent(const QString& folder, const std::string& where)
{
    const QString path = QDir(folder).filePath("2024.mdb");
    EXPECT_TRUE(ListYearFiles(folder).isEmpty() ||
                ListYearFiles(folder) == QStringList({"2024.mdb"}))
        << where;
    if (!QFile::exists(path))
        return false;
    Database db;
    EXPECT_TRUE(db.Open(path)) << where;
    EXPECT_TRUE(CheckIntegrity(db)) << where;
    EXPECT_EQ(CountRows(path, "table1"), DaysInYear) << where;
    return true;
}

// Days whose note is as the test year made it ("row-001" ...), or as the child saved it.
const QString Original = "Notes = printf('row-%03d', DBID)";
const QString Saved = "Notes = 'catch ' || DBID";

int DaysWhere(const QString& path, const QString& condition)
{
    return PlainColumn(path, "select count(*) from table1 where " + condition)[0].toInt();
}

void ExpectEveryOriginalNote(const QString& path, const std::string& where)
{
    EXPECT_EQ(DaysWhere(path, Original), DaysInYear) << where;
}

} // namespace

TEST(CrashSafety, CreateKilledAtAnyPointLeavesNoYearFileOrAWholeOne)
{
    const QString folder = testenv::FreshDir("crash-create");
    const QString path = QDir(folder).filePath("2024.mdb");
    ASSERT_TRUE(CreateTemplateFile(QDir(folder).filePath("Default.mdb")));
    const auto afterRun = [&](const ChildEnd& end, const std::string& where) {
        const bool whole = CheckYearFileWholeOrAbsent(folder, where);
        EXPECT_TRUE(end.Killed || (whole && end.ExitCode == 0)) << where;
        DeleteYearFile(path);
        CleanLeftovers(folder);
        EXPECT_EQ(QDir(folder).entryList(QDir::Files), QStringList({"Default.mdb"})) << where;
    };
    // 21 days spread over the fill, from its first day to its last; each file step: clearing
    // leftovers, copying the template, syncing, renaming into place.
    std::vector<QStringList> kills;
    for (int day = 1; day <= DaysInYear; day += 18)
        kills.push_back({QString::number(day), "0"});
    for (int step = 1; step <= 7; ++step)
        kills.push_back({"0", QString::number(step)});
    KilledAtEveryPoint(
        kills, {"0", "0"}, 10,
        [&](const QStringList& kill) {
            return QStringList{"create", folder, "2024"} + kill;
        },
        afterRun);
}

TEST(CrashSafety, CompactKilledAtAnyPointKeepsTheYearFileWithEveryEntry)
{
    const QString made = MakeYearFile("crash-compact-source");
    const QString folder = testenv::FreshDir("crash-compact");
    const QString path = QDir(folder).filePath("2024.mdb");
    // Syncing the compacted copy, copying the file to .BAK, syncing that, renaming it over the
    // old .BAK, renaming the compacted copy over the file.
    KilledAtEveryPoint(
        {{"1"}, {"2"}, {"3"}, {"4"}, {"5"}}, {"0"}, 8,
        [&](const QStringList& kill) {
            return QStringList{"compact", FreshCopy(made, folder)} + kill;
        },
        [&](const ChildEnd&, const std::string& where) {
            ASSERT_TRUE(CheckYearFileWholeOrAbsent(folder, where));
            ExpectEveryOriginalNote(path, where);
            CleanLeftovers(folder);
            EXPECT_FALSE(QFile::exists(QDir(folder).filePath("New2024.mdb"))) << where;
            EXPECT_TRUE(CompactDB(path)) << where; // the next compaction is not blocked
            ExpectEveryOriginalNote(path, where);
        });
}

TEST(CrashSafety, SavingEntriesKilledMidwayKeepsEverySavedEntry)
{
    const QString path = MakeYearFile("crash-edit");
    for (const int killAt : {1, 40, 200}) {
        QProcess child;
        child.start(QStringLiteral(LOGCRASH_CHILD), {"edit", path});
        ASSERT_TRUE(child.waitForStarted());
        int saved = 0;
        while (saved < killAt && child.state() == QProcess::Running) {
            if (!child.canReadLine() && !child.waitForReadyRead(30000))
                break;
            while (child.canReadLine())
                saved = QString(child.readLine()).section(' ', 1).trimmed().toInt();
        }
        child.kill();
        child.waitForFinished();
        const std::string where = "killed after save " + std::to_string(saved);
        ASSERT_GE(saved, killAt) << where;
        ASSERT_TRUE(CheckYearFileWholeOrAbsent(QFileInfo(path).absolutePath(), where));
        // Every save reported is there; the days after are either saved or untouched.
        EXPECT_EQ(DaysWhere(path, QString("DBID <= %1 AND ").arg(saved) + Saved), saved) << where;
        EXPECT_EQ(
            DaysWhere(path, QString("DBID > %1 AND (%2 OR %3)").arg(saved).arg(Saved, Original)),
            DaysInYear - saved)
            << where;
    }
}

TEST(CrashSafety, UpgradeKilledAtAnyMomentLeavesTheOldFileOrTheNewOneWithEveryEntry)
{
    const QString made = MakeYearFile("crash-upgrade-source"); // without the catches' tables
    const QString folder = testenv::FreshDir("crash-upgrade");
    const QString path = QDir(folder).filePath("2024.mdb");
    std::array<int, 2> seen{}; // files found old, upgraded
    KilledAtEveryPoint(
        {}, {}, 19,
        [&](const QStringList&) {
            return QStringList{"catch", FreshCopy(made, folder)};
        },
        [&](const ChildEnd&, const std::string& where) {
            ASSERT_TRUE(CheckYearFileWholeOrAbsent(folder, where));
            ExpectEveryOriginalNote(path, where);
            int version = -1;
            ASSERT_TRUE(CatchSchemaOf(path, version)) << where;
            ++seen[version == 0 ? 0 : 1];
            const QVariant total = PlainColumn(
                path, "SELECT TotalTaken FROM table1 WHERE JulianDate = '2024-07-04'")[0];
            EXPECT_EQ(total.isNull(), version == 0) << where;
            if (version != 0) {
                EXPECT_EQ(version, CatchSchemaVersion) << where;
                EXPECT_EQ(PlainColumn(path, "SELECT SUM(FishCount) FROM Catches")[0], 3) << where;
                EXPECT_EQ(total.toInt(), 3) << where;
                // The file as it was before the upgrade is kept as a backup.
                EXPECT_EQ(testenv::FileBytes(ListBackups(path).value(0)), testenv::FileBytes(made));
            }
        });
    std::cout << "files found old " << seen[0] << ", upgraded " << seen[1] << "\n";
    EXPECT_GE(seen[1], 1); // the unkilled first run at least
}
