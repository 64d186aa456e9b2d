// SPDX-License-Identifier: GPL-3.0-or-later
// The year files on disk: listing, creating, compacting, protecting them, and the order of
// the file steps that makes each replacement survive a power cut.
#include "db/datacontrol.h"
#include "logdb/backups.h"
#include "logdb/catches.h"
#include "logdb/logfiles.h"
#include "support/filledyear.h"
#include "support/logfixture.h"
#include "support/testenv.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <functional>
#include <map>

#include <gtest/gtest.h>

using namespace logtest;

namespace {

QString FolderOf(const QString& path) { return QFileInfo(path).absolutePath(); }

// A value no day can have, so that repair rebuilds the file.
void Spoil(const QString& path)
{
    PlainExec(path, "update table1 set IllumPercent = 500 where DBID = 3");
}

bool Repaired(const RepairReport& report) { return report.Result && report.Damaged; }

// Real file operations, each recorded with its paths (a folder sync records the folder);
// the n-th atomic replacement fails when asked.
struct Step {
    QString Kind, From, To;
};
class RecordingOps : public FileOps {
    using Path = const QString&;

public:
    explicit RecordingOps(int failingReplace = 0) : failing_(failingReplace) {}
    std::vector<Step> Steps;
    bool Copy(Path f, Path t) override { return Note("copy", f, t) && FileOps::Copy(f, t); }
    bool Sync(Path f) override { return Note("sync", f) && FileOps::Sync(f); }
    bool Rename(Path f, Path t) override { return Note("rename", f, t) && FileOps::Rename(f, t); }
    bool Replace(Path f, Path t) override
    {
        return ++replaces_ != failing_ && Note("rename", f, t) && FileOps::Replace(f, t);
    }
    bool SyncFolderOf(Path f) override
    {
        return Note("dir", FolderOf(f)) && FileOps::SyncFolderOf(f);
    }

private:
    bool Note(const char* kind, const QString& from, const QString& to = {})
    {
        Steps.push_back({kind, from, to});
        return true;
    }
    int failing_;
    int replaces_ = 0;
};

// What in the recorded steps a power cut could undo; empty when nothing.
std::string PowerCutRisks(const std::vector<Step>& steps)
{
    std::string risks;
    const auto at = [&](std::size_t i) { return i < steps.size() ? steps[i] : Step{}; };
    for (std::size_t i = 0; i < steps.size(); ++i) {
        const Step& s = steps[i];
        const std::string name = QFileInfo(s.From).fileName().toStdString();
        if (s.Kind == "sync" && !(at(i + 1).Kind == "dir" && at(i + 1).From == FolderOf(s.From)))
            risks += name + " synced without its folder; ";
        if (s.Kind != "rename")
            continue;
        // Every copy made so far, and the file renamed, are on the disk before the rename.
        std::map<QString, bool> synced{{s.From, false}};
        for (std::size_t j = 0; j < i; ++j) {
            if (steps[j].Kind == "copy")
                synced[steps[j].To] = false;
            if (steps[j].Kind == "sync")
                synced[steps[j].From] = true;
        }
        for (const auto& [file, done] : synced)
            if (!done)
                risks += QFileInfo(file).fileName().toStdString() + " not synced before " + name +
                         " is renamed; ";
        std::size_t next = i + 1;
        while (at(next).Kind == "rename" && at(next).From == s.From && at(next).To == s.To)
            ++next;
        if (at(next).Kind != "dir" || at(next).From != FolderOf(s.To))
            risks += "no folder sync after " + name + " is renamed; ";
    }
    return risks;
}

} // namespace

// Every file is on the disk before it is renamed into place, every backup copy before the
// file it keeps is replaced, and the folder after each rename: a kill cannot tell, a power cut
// can.
TEST(YearFiles, EveryFileAndFolderIsSyncedAroundEachRename)
{
    const std::vector<std::pair<const char*, std::function<bool(const QString&, FileOps&)>>> ops = {
        {"create",
         [](const QString& path, FileOps& o) {
             DeleteYearFile(path); // and the template, made again from the schema
             QFile::remove(QDir(FolderOf(path)).filePath("Default.mdb"));
             return CreateYearFile(FolderOf(path), Year, {}, o).Outcome ==
                    CreateYearResult::Status::Created;
         }},
        {"compact", [](const QString& path, FileOps& o) { return bool(CompactDB(path, {}, o)); }},
        {"repair",
         [](const QString& path, FileOps& o) {
             Spoil(path);
             return Repaired(RepairYearFile(path, {}, o));
         }},
        {"restore",
         [](const QString& path, FileOps& o) {
             CompactDB(path);
             QFile::remove(path);
             CleanLeftovers(FolderOf(path)); // which must not take the year's only copy
             const auto kept = RestorableYears(FolderOf(path));
             return kept.size() == 1 && RestoreYearFile(FolderOf(path), kept[0], o);
         }},
    };
    for (const auto& [name, run] : ops) {
        const QString path = MakeYearFile("durable", 30);
        RecordingOps recording;
        ASSERT_TRUE(run(path, recording)) << name;
        EXPECT_EQ(PowerCutRisks(recording.Steps), "") << name;
        EXPECT_TRUE(std::any_of(recording.Steps.begin(), recording.Steps.end(), [&](const Step& s) {
            return s.Kind == "rename" && s.To == path;
        })) << name;
        EXPECT_EQ(CountRows(path, "table1"), std::string(name) == "create" ? 0 : 30) << name;
    }
}

// A year file kept elsewhere behind a link stays a link to the compacted or repaired file, and
// a file the angler made read-only keeps its permissions.
TEST(Compaction, KeepsALinkALinkAndTheFilesPermissions)
{
    using P = QFileDevice;
    const QFileDevice::Permissions mode = P::ReadOwner | P::ReadGroup;
    const std::pair<const char*, std::function<bool(const QString&)>> operations[] = {
        {"2024.BAK", [](const QString& path) { return bool(CompactDB(path)); }},
        {"2024.BAD", [](const QString& path) { return Repaired(RepairYearFile(path, {})); }}};
    for (const auto& [kept, run] : operations) {
        const QString path = MakeYearFile("keeps-shape", 30);
        const QString folder = FolderOf(path);
        const QString file = folder + "/elsewhere/fishing-2024.sqlite";
        Spoil(path);
        QDir().mkpath(folder + "/elsewhere");
        ASSERT_TRUE(QFile::rename(path, file));
        ASSERT_TRUE(QFile::link(file, path));
        ASSERT_TRUE(QFile::setPermissions(file, mode));
        ASSERT_TRUE(run(path)) << kept;
        EXPECT_EQ(QFileInfo(path).symLinkTarget(), QFileInfo(file).canonicalFilePath()) << kept;
        // The owner's, group's and others' permissions; the User ones are this process's.
        EXPECT_EQ(QFileInfo(file).permissions() & ~(P::ReadUser | P::WriteUser | P::ExeUser), mode);
        EXPECT_EQ(CountRows(path, "table1"), 30) << kept;
        EXPECT_TRUE(QFile::exists(folder + "/" + kept)) << kept;
        EXPECT_EQ(QDir(FolderOf(file)).entryList({"New*", "Rep*"}, QDir::Files), QStringList());
    }
}

TEST(Compaction, AFailureOrAFileThatIsNotAWholeLogLeavesTheFilesAsTheyAre)
{
    const QString path = MakeYearFile("compact-fail");
    const QString folder = FolderOf(path);
    for (const int failing : {1, 2}) { // the copy to .BAK, the new copy to the file's name
        RecordingOps ops(failing);
        EXPECT_FALSE(CompactDB(path, {}, ops));
        EXPECT_EQ(CountRows(path, "table1"), DaysInYear) << "rename " << failing;
        EXPECT_FALSE(QFileInfo::exists(QDir(folder).filePath("New2024.mdb")));
    }
    EXPECT_FALSE(CompactDB(QDir(folder).filePath("1999.mdb")));

    ASSERT_TRUE(CompactDB(path)); // 2024.BAK: the good file
    const QByteArray whole = testenv::FileBytes(path);
    const QByteArray kept = testenv::FileBytes(QDir(folder).filePath("2024.BAK"));
    const int page = (uchar(whole[16]) << 8) | uchar(whole[17]);
    for (const auto& [why, content] : std::vector<std::pair<const char*, QByteArray>>{
             {"is empty", QByteArray()},
             {"is cut short", whole.left(whole.size() - page)},
             {"is cut short", whole.left(whole.size() - 100)},
             {"is not a Quillmere log", QByteArray("%PDF-1.4 a report")}}) {
        testenv::WriteFile(path, content);
        const DbResult compacted = CompactDB(path);
        EXPECT_TRUE(compacted.Message.contains(why)) << compacted.Message.toStdString();
        EXPECT_TRUE(compacted.Message.contains("2024.BAK is kept as it is"));
        EXPECT_EQ(testenv::FileBytes(QDir(folder).filePath("2024.BAK")), kept) << why;
        EXPECT_EQ(testenv::FileBytes(path), content) << why;
    }
}

// A protected year file opens only with its password, stays protected when compacted, and
// every catch operation needs it.
TEST(Password, AProtectedFileNeedsItsPasswordForEveryOperation)
{
    const QString path = MakeYearFile("password", 10);
    const QString connect = ";pwd=Trout7";
    Database db;
    ASSERT_TRUE(db.Open(path));
    ASSERT_TRUE(db.SetPassword("Trout7"));
    db.Close();
    EXPECT_EQ(db.Open(path).Message, "Not a valid password.");
    EXPECT_FALSE(db.Open(path, ";pwd=trout7"));
    EXPECT_EQ(CountRows(path, "table1", connect), 10);
    EXPECT_FALSE(CompactDB(path));
    ASSERT_TRUE(CompactDB(path, connect));
    EXPECT_FALSE(db.Open(path));

    const QDateTime now = QDateTime::currentDateTime();
    Catch c{.Date = "2024-01-05", .Time = "09:30:00", .Species = "Trout", .Count = 2};
    EXPECT_FALSE(AddCatch(path, c, now));
    ASSERT_TRUE(AddCatch(path, c, now, connect));
    c.Count = 3;
    EXPECT_FALSE(UpdateCatch(path, c, now));
    ASSERT_TRUE(UpdateCatch(path, c, now, connect));
    std::vector<Catch> read;
    EXPECT_FALSE(ReadDayCatches(path, c.Date, read));
    ASSERT_TRUE(ReadDayCatches(path, c.Date, read, connect));
    EXPECT_EQ(read, std::vector<Catch>{c});
    EXPECT_FALSE(RemoveCatch(path, c.Id, now));
    ASSERT_TRUE(RemoveCatch(path, c.Id, now, connect));
    ASSERT_TRUE(db.Open(path, connect));
    ASSERT_TRUE(db.SetPassword({}));
    EXPECT_TRUE(db.Open(path));
}

// Twelve changed copies within one second: the ten newest stay, newest first, and a restore
// keeps the file it replaces even when that prunes the very copy being restored.
TEST(Backups, KeepTheTenNewestWithinOneSecondAndARestoreKeepsTheReplacedFile)
{
    const QString year = testenv::FreshDir("backups") + "/2024.mdb";
    const QDateTime second(QDate(2024, 6, 1), QTime(10, 0));
    const auto version = [](int n) { return QByteArray("version ") + QByteArray::number(n); };
    for (int n = 1; n <= 12; ++n) {
        testenv::WriteFile(year, version(n));
        ASSERT_TRUE(BackUpIfChanged(year, second));
        ASSERT_TRUE(BackUpIfChanged(year, second)); // unchanged: no second copy
    }
    QStringList backups = ListBackups(year);
    ASSERT_EQ(backups.size(), BackupsKeptPerYear);
    for (int i = 0; i < BackupsKeptPerYear; ++i)
        EXPECT_EQ(testenv::FileBytes(backups[i]), version(12 - i)) << backups[i].toStdString();

    testenv::WriteFile(year, version(13));
    ASSERT_TRUE(RestoreBackup(year, backups.back(), second));
    EXPECT_EQ(testenv::FileBytes(year), version(3));
    backups = ListBackups(year);
    ASSERT_EQ(backups.size(), BackupsKeptPerYear);
    EXPECT_EQ(testenv::FileBytes(backups.front()), version(13));
}
