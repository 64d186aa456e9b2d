// SPDX-License-Identifier: GPL-3.0-or-later
// Crash safety of the log's files: a child process runs the real create, compact and save
// code and is killed with SIGKILL at many points; the folder must then hold no year file or a
// whole one with every saved entry, and the program must open it.
#include "db/datacontrol.h"
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
#include <csignal>
#include <iostream>

using namespace logtest;

namespace {

struct ChildEnd {
    bool Killed = false; // died by SIGKILL, not by finishing
    int ExitCode = 0;
};

// Runs the child to its end or kills it after the given time; the run's length in ms.
ChildEnd RunChild(const QStringList& args, int killAfterMs = -1, qint64* took = nullptr)
{
    QElapsedTimer clock;
    clock.start();
    QProcess child;
    child.start(QStringLiteral(LOGCRASH_CHILD), args);
    EXPECT_TRUE(child.waitForStarted());
    if (killAfterMs < 0) {
        EXPECT_TRUE(child.waitForFinished(120000));
    } else if (!child.waitForFinished(killAfterMs)) {
        child.kill();
        child.waitForFinished();
    }
    if (took)
        *took = clock.elapsed();
    return {child.exitStatus() == QProcess::CrashExit, child.exitCode()};
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
    {
        Database db;
        EXPECT_TRUE(db.Open(path)) << where;
        EXPECT_TRUE(CheckIntegrity(db)) << where;
    }
    DataControl data;
    data.SetDatabaseName(path);
    data.SetRecordSource("Select * from table1 order by juliandate");
    EXPECT_TRUE(data.Refresh()) << where;
    EXPECT_EQ(data.RecordCount(), DaysInYear) << where;
    return true;
}

// The Notes of every day, in date order.
QStringList NotesOf(const QString& path)
{
    QStringList notes;
    for (const QVariant& note : PlainColumn(path, "select Notes from table1 order by JulianDate"))
        notes << note.toString();
    return notes;
}

QString OriginalNote(int day) { return QString("row-%1").arg(day, 3, 10, QChar('0')); }

void ExpectEveryOriginalNote(const QString& path, const std::string& where)
{
    const QStringList notes = NotesOf(path);
    ASSERT_EQ(notes.size(), DaysInYear) << where;
    for (int day = 1; day <= DaysInYear; ++day)
        EXPECT_EQ(notes[day - 1], OriginalNote(day)) << where << " day " << day;
}

} // namespace

TEST(CrashSafety, CreateKilledAtAnyPointLeavesNoYearFileOrAWholeOne)
{
    const QString folder = testenv::FreshDir("crash-create");
    ASSERT_TRUE(CreateTemplateFile(QDir(folder).filePath("Default.mdb")));
    const auto afterKill = [&folder](const ChildEnd& end, const std::string& where) {
        EXPECT_TRUE(end.Killed) << where << " ran to its end";
        if (CheckYearFileWholeOrAbsent(folder, where))
            DeleteYearFile(QDir(folder).filePath("2024.mdb"));
        CleanLeftovers(folder);
        EXPECT_EQ(QDir(folder).entryList(QDir::Files), QStringList({"Default.mdb"})) << where;
    };
    // 21 days spread over the fill, from its first day to its last.
    for (int day = 1; day <= DaysInYear; day += 18)
        afterKill(RunChild({"create", folder, "2024", QString::number(day), "0"}),
                  "day " + std::to_string(day));
    // Each file step: clearing leftovers, copying the template, syncing, renaming into place.
    for (int step = 1; step <= 7; ++step)
        afterKill(RunChild({"create", folder, "2024", "0", QString::number(step)}),
                  "step " + std::to_string(step));
    // And at moments nobody chose over a whole run, the engine's commit included.
    qint64 whole = 0;
    RunChild({"create", folder, "2024", "0", "0"}, -1, &whole);
    DeleteYearFile(QDir(folder).filePath("2024.mdb"));
    for (int i = 0; i < 10; ++i) {
        const int ms = int(QRandomGenerator::global()->bounded(qint64(1), whole + 1));
        RunChild({"create", folder, "2024", "0", "0"}, ms);
        const std::string where = "after " + std::to_string(ms) + " ms";
        CheckYearFileWholeOrAbsent(folder, where);
        DeleteYearFile(QDir(folder).filePath("2024.mdb"));
        CleanLeftovers(folder);
    }
    // Unkilled, the same program makes the whole year, and a later Create is not blocked.
    const ChildEnd done = RunChild({"create", folder, "2024", "0", "0"});
    EXPECT_FALSE(done.Killed);
    EXPECT_EQ(done.ExitCode, 0);
    EXPECT_TRUE(CheckYearFileWholeOrAbsent(folder, "unkilled"));
}

TEST(CrashSafety, CompactKilledAtAnyPointKeepsTheYearFileWithEveryEntry)
{
    const QString made = MakeYearFile("crash-compact-source");
    // Syncing the compacted copy, copying the file to .BAK, syncing that, renaming it over the
    // old .BAK, renaming the compacted copy over the file.
    for (int step = 1; step <= 5; ++step) {
        const std::string where = "step " + std::to_string(step);
        const QString folder = testenv::FreshDir("crash-compact");
        const QString path = QDir(folder).filePath("2024.mdb");
        ASSERT_TRUE(QFile::copy(made, path));
        EXPECT_TRUE(RunChild({"compact", path, QString::number(step)}).Killed) << where;
        ASSERT_TRUE(CheckYearFileWholeOrAbsent(folder, where));
        ExpectEveryOriginalNote(path, where);
        CleanLeftovers(folder);
        EXPECT_FALSE(QFile::exists(QDir(folder).filePath("New2024.mdb"))) << where;
        EXPECT_TRUE(CompactDB(path)) << where; // the next compaction is not blocked
        ExpectEveryOriginalNote(path, where);
    }
    qint64 whole = 0;
    for (int i = 0; i < 8; ++i) {
        const QString folder = testenv::FreshDir("crash-compact");
        const QString path = QDir(folder).filePath("2024.mdb");
        ASSERT_TRUE(QFile::copy(made, path));
        if (i == 0) { // the length of a whole run, to kill the others within it
            RunChild({"compact", path, "0"}, -1, &whole);
            continue;
        }
        const int ms = int(QRandomGenerator::global()->bounded(qint64(1), whole + 1));
        RunChild({"compact", path, "0"}, int(ms));
        const std::string where = "after " + std::to_string(ms) + " ms";
        ASSERT_TRUE(CheckYearFileWholeOrAbsent(folder, where));
        ExpectEveryOriginalNote(path, where);
    }
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
        const QStringList notes = NotesOf(path);
        // Every save reported is there; the days after are either saved or untouched.
        for (int day = 1; day <= DaysInYear; ++day) {
            const QString note = notes[day - 1];
            if (day <= saved)
                EXPECT_EQ(note, QString("catch %1").arg(day)) << where;
            else
                EXPECT_TRUE(note == OriginalNote(day) || note == QString("catch %1").arg(day))
                    << where << " day " << day << ": " << note.toStdString();
        }
    }
}

TEST(CrashSafety, AYearLeftBehindAsCopiesIsOfferedBackNotDeleted)
{
    // What an interrupted compaction of an earlier version left: the year as .BAK and the
    // compacted copy, with no year file.
    const QString path = MakeYearFile("restore");
    const QString folder = QFileInfo(path).absolutePath();
    ASSERT_TRUE(QFile::copy(path, QDir(folder).filePath("New2024.mdb")));
    ASSERT_TRUE(QFile::rename(path, QDir(folder).filePath("2024.BAK")));

    CleanLeftovers(folder);
    EXPECT_TRUE(QFile::exists(QDir(folder).filePath("New2024.mdb")));
    const CreateYearResult refused = CreateYearFile(folder, Year);
    EXPECT_EQ(refused.Outcome, CreateYearResult::Status::Failed);
    EXPECT_TRUE(refused.Message.contains("New2024.mdb")) << refused.Message.toStdString();

    const auto kept = RestorableYears(folder);
    ASSERT_EQ(kept.size(), 1u);
    EXPECT_EQ(kept[0].Year, Year);
    EXPECT_EQ(QFileInfo(kept[0].Copy).fileName(), "New2024.mdb");
    ASSERT_TRUE(RestoreYearFile(folder, kept[0]));
    ExpectEveryOriginalNote(path, "restored");
    EXPECT_EQ(QDir(folder).entryList(QDir::Files),
              QStringList({"2024.BAK", "2024.mdb", "Default.mdb"}));
    EXPECT_TRUE(RestorableYears(folder).empty());
}

namespace {

// Starts the child's catch and kills it `killAfterUs` microseconds after it said "ready"
// (never when negative); the microseconds from "ready" to its end.
qint64 AddCatchKilledAfter(const QString& path, qint64 killAfterUs)
{
    QProcess child;
    child.start(QStringLiteral(LOGCRASH_CHILD), {"catch", path});
    EXPECT_TRUE(child.waitForStarted());
    EXPECT_TRUE(child.waitForReadyRead(30000));
    QElapsedTimer clock;
    clock.start();
    if (killAfterUs >= 0) {
        while (clock.nsecsElapsed() / 1000 < killAfterUs) {
        }
        child.kill();
    }
    child.waitForFinished(30000);
    return clock.nsecsElapsed() / 1000;
}

} // namespace

TEST(CrashSafety, UpgradeKilledAtAnyMomentLeavesTheOldFileOrTheNewOneWithEveryEntry)
{
    const QString made = MakeYearFile("crash-upgrade-source"); // without the catches' tables
    qint64 whole = 0;
    std::array<int, 2> seen{}; // files found old, upgraded
    for (int i = 0; i < 20; ++i) {
        const QString folder = testenv::FreshDir("crash-upgrade");
        const QString path = QDir(folder).filePath("2024.mdb");
        ASSERT_TRUE(QFile::copy(made, path));
        const qint64 us = i == 0 ? -1 : QRandomGenerator::global()->bounded(whole + 1);
        const qint64 took = AddCatchKilledAfter(path, us);
        whole = i == 0 ? took : whole;
        const std::string where = "killed after " + std::to_string(us) + " us";
        ASSERT_TRUE(CheckYearFileWholeOrAbsent(folder, where));
        ExpectEveryOriginalNote(path, where);
        int version = -1;
        ASSERT_TRUE(CatchSchemaOf(path, version)) << where;
        ++seen[version == 0 ? 0 : 1];
        const QVariant total =
            PlainColumn(path, "SELECT TotalTaken FROM table1 WHERE JulianDate = '2024-07-04'")[0];
        if (version == 0) {
            EXPECT_TRUE(total.isNull()) << where;
            continue;
        }
        EXPECT_EQ(version, CatchSchemaVersion) << where;
        EXPECT_EQ(PlainColumn(path, "SELECT SUM(FishCount) FROM Catches")[0], 3) << where;
        EXPECT_EQ(total.toInt(), 3) << where;
    }
    std::cout << "upgrade runs " << whole << " us; files found old " << seen[0] << ", upgraded "
              << seen[1] << "\n";
    EXPECT_GE(seen[1], 1); // the unkilled first run at least
}
