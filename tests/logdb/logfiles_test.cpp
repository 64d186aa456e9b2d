// SPDX-License-Identifier: GPL-3.0-or-later
// The year files on disk: listing, creating, compacting and protecting them.
#include "db/datacontrol.h"
#include "logdb/logfiles.h"
#include "support/logfixture.h"
#include "support/testenv.h"

#include <QDir>
#include <QFile>

#include <functional>

#include <gtest/gtest.h>

using namespace logtest;

namespace {

QStringList FilesIn(const QString& folder)
{
    return QDir(folder).entryList(QDir::Files, QDir::Name);
}

QString FolderOf(const QString& path) { return QFileInfo(path).absolutePath(); }

// Real file operations, except that the n-th atomic replacement fails.
class FailingReplace : public FileOps {
public:
    explicit FailingReplace(int failing) : failing_(failing) {}
    bool Replace(const QString& from, const QString& to) override
    {
        return ++renames_ != failing_ && FileOps::Replace(from, to);
    }

private:
    int failing_;
    int renames_ = 0;
};

} // namespace

TEST(YearFiles, ListShowsOnlyFourCharacterMdbNames)
{
    const QString folder = testenv::FreshDir("listing");
    for (const char* name : {"Default.mdb", "Encdb.MDB", "2004.mdb", "2005.mdb", "2006.MDB",
                             "20071.mdb", "204.mdb", "2008.mdb.bak", "2009.BAK", "notes.txt"})
        testenv::WriteFile(QDir(folder).filePath(name));
    QDir().mkpath(QDir(folder).filePath("2010.mdb")); // a folder, not a file
    EXPECT_EQ(ListYearFiles(folder), QStringList({"2004.mdb", "2005.mdb", "2006.MDB"}));
}

TEST(YearFiles, CreateCopiesTheTemplateAndLeavesAnExistingYearAlone)
{
    const QString folder = testenv::FreshDir("create");
    const CreateYearResult first = CreateYearFile(folder, 2004);
    ASSERT_EQ(first.Outcome, CreateYearResult::Status::Created) << first.Message.toStdString();
    EXPECT_EQ(first.Path, QDir(folder).filePath("2004.mdb"));
    EXPECT_EQ(FilesIn(folder), QStringList({"2004.mdb", "Default.mdb"}));
    EXPECT_EQ(CountRows(QDir(folder).filePath("Default.mdb"), "table1"), 0);

    const QString path = MakeYearFile("create-existing", 20);
    const QByteArray before = testenv::FileBytes(path);
    const CreateYearResult again = CreateYearFile(FolderOf(path), Year);
    EXPECT_EQ(again.Outcome, CreateYearResult::Status::AlreadyExists);
    EXPECT_EQ(again.Path, path);
    EXPECT_EQ(testenv::FileBytes(path), before);
    EXPECT_EQ(CountRows(path, "table1"), 20);
}

TEST(YearFiles, TemplateLaysOutTheLogColumnsInTheirPlaces)
{
    const QString folder = testenv::FreshDir("template");
    const QString path = QDir(folder).filePath("Default.mdb");
    ASSERT_TRUE(CreateTemplateFile(path));
    EXPECT_FALSE(CreateTemplateFile(path)); // never overwritten
    Database db;
    ASSERT_TRUE(db.Open(path));
    const auto columns = db.Columns("TABLE1");
    ASSERT_EQ(columns.size(), 25u);
    const std::vector<std::pair<int, QString>> placed = {
        {0, "DBID"},   {1, "JulianDate"}, {2, "IllumPercent"}, {3, "GraphicType"}, {4, "MoonAge"},
        {5, "Waxing"}, {6, "Major1"},     {7, "Major2"},       {11, "SunRise"},    {12, "SunSet"}};
    for (const auto& [index, name] : placed)
        EXPECT_EQ(columns[std::size_t(index)].Name, name);
    EXPECT_TRUE(columns[0].PrimaryKey);
    EXPECT_EQ(columns[1].Kind, ColumnKind::Date);
    EXPECT_EQ(columns[11].Kind, ColumnKind::Time);
    EXPECT_EQ(columns[19].Name, "DayOfWeek_");
    EXPECT_EQ(columns[19].Kind, ColumnKind::Integer);
}

TEST(Compaction, TwiceLeavesTheCompactedFileAndOneBackup)
{
    const QString path = MakeYearFile("compact");
    {
        Database db;
        ASSERT_TRUE(db.Open(path));
        ASSERT_TRUE(db.Execute("delete from table1 where month > 6"));
    }
    const qint64 grown = QFileInfo(path).size();
    ASSERT_TRUE(CompactDB(path));
    EXPECT_LT(QFileInfo(path).size(), grown);
    EXPECT_EQ(FilesIn(FolderOf(path)), QStringList({"2024.BAK", "2024.mdb", "Default.mdb"}));

    const QByteArray beforeSecond = testenv::FileBytes(path);
    ASSERT_TRUE(CompactDB(path));
    EXPECT_EQ(FilesIn(FolderOf(path)), QStringList({"2024.BAK", "2024.mdb", "Default.mdb"}));
    EXPECT_EQ(testenv::FileBytes(QDir(FolderOf(path)).filePath("2024.BAK")), beforeSecond);
    EXPECT_EQ(CountRows(path, "table1"), 182);
}

// A year file kept elsewhere behind a link stays a link to the compacted or repaired file, and
// a file the angler made read-only (or private) keeps its permissions.
TEST(Compaction, KeepsALinkALinkAndTheFilesPermissions)
{
    using P = QFileDevice;
    const struct {
        const char* Name;
        bool Linked;
        QFileDevice::Permissions Mode;
    } cases[] = {
        {"linked", true, P::ReadOwner | P::WriteOwner | P::ReadGroup | P::ReadOther},
        {"read-only", false, P::ReadOwner | P::ReadGroup | P::ReadOther},
        {"private", false, P::ReadOwner | P::WriteOwner},
        {"linked and read-only", true, P::ReadOwner | P::ReadGroup},
    };
    // Repair rebuilds a file holding a value no day can have; compact any sound file.
    const struct {
        const char* Name;
        const char* Kept;
        std::function<bool(const QString&)> Run;
    } operations[] = {
        {"compact", "2024.BAK", [](const QString& path) { return bool(CompactDB(path)); }},
        {"repair", "2024.BAD",
         [](const QString& path) {
             const RepairReport report = RepairYearFile(path, {});
             return report.Result && report.Damaged;
         }},
    };
    for (const auto& op : operations)
        for (const auto& c : cases) {
            const std::string name = std::string(op.Name) + ", " + c.Name;
            const QString made = MakeYearFile("keeps-shape", 30);
            const QString folder = FolderOf(made);
            QString path = made;
            QString file = made;
            {
                Database db;
                ASSERT_TRUE(db.Open(made));
                ASSERT_TRUE(db.Execute("update table1 set IllumPercent = 500 where DBID = 3"));
            }
            if (c.Linked) {
                QDir().mkpath(folder + "/elsewhere");
                file = folder + "/elsewhere/fishing-2024.sqlite";
                ASSERT_TRUE(QFile::rename(made, file));
                ASSERT_TRUE(QFile::link(file, path));
            }
            ASSERT_TRUE(QFile::setPermissions(file, c.Mode));
            ASSERT_TRUE(op.Run(path)) << name;
            const QFileInfo info(path);
            EXPECT_EQ(info.isSymLink(), c.Linked) << name;
            EXPECT_EQ(info.canonicalFilePath(), QFileInfo(file).canonicalFilePath()) << name;
            // The owner's, group's and others' permissions; the User ones are this process's.
            const auto mode =
                QFileInfo(file).permissions() & ~(P::ReadUser | P::WriteUser | P::ExeUser);
            EXPECT_EQ(mode, c.Mode) << name;
            EXPECT_EQ(CountRows(path, "table1"), 30) << name;
            EXPECT_TRUE(QFile::exists(folder + "/" + op.Kept)) << name;
            EXPECT_EQ(QDir(QFileInfo(file).absolutePath()).entryList({"New*", "Rep*"}, QDir::Files),
                      QStringList())
                << name;
        }
}

TEST(Compaction, AFailureLeavesTheYearFileReadable)
{
    const QString path = MakeYearFile("compact-fail");
    const QString folder = FolderOf(path);
    for (const int failing : {1, 2}) { // the copy to .BAK, the new copy to the file's name
        FailingReplace ops(failing);
        EXPECT_FALSE(CompactDB(path, {}, ops));
        EXPECT_EQ(CountRows(path, "table1"), DaysInYear) << "rename " << failing;
        EXPECT_FALSE(QFileInfo::exists(QDir(folder).filePath("New2024.mdb")));
    }
    // A compacted copy that cannot be written: a folder stands in its place.
    ASSERT_TRUE(QDir(folder).mkdir("New2024.mdb"));
    EXPECT_FALSE(CompactDB(path));
    EXPECT_EQ(CountRows(path, "table1"), DaysInYear);
    EXPECT_FALSE(CompactDB(QDir(folder).filePath("1999.mdb")));
}

TEST(Password, AProtectedFileOpensOnlyWithItsPassword)
{
    const QString path = MakeYearFile("password", 10);
    {
        Database db;
        ASSERT_TRUE(db.Open(path));
        ASSERT_TRUE(db.SetPassword("Trout7"));
    }
    Database db;
    const DbResult refused = db.Open(path);
    EXPECT_FALSE(refused);
    EXPECT_EQ(refused.Message, "Not a valid password.");
    EXPECT_FALSE(db.IsOpen());
    EXPECT_FALSE(db.Open(path, ";pwd=trout7"));
    EXPECT_TRUE(db.Open(path, ";pwd=Trout7"));

    DataControl data;
    data.SetDatabaseName(path);
    data.SetRecordSource("select * from table1");
    EXPECT_FALSE(data.Refresh());
    data.SetConnect(";pwd=Trout7");
    ASSERT_TRUE(data.Refresh());
    EXPECT_EQ(data.RecordCount(), 10);
    data.Close();
    db.Close();

    // The compacted file keeps the protection.
    EXPECT_FALSE(CompactDB(path));
    ASSERT_TRUE(CompactDB(path, ";pwd=Trout7"));
    EXPECT_FALSE(db.Open(path));
    EXPECT_EQ(CountRows(path, "table1", ";pwd=Trout7"), 10);

    ASSERT_TRUE(db.Open(path, ";pwd=Trout7"));
    ASSERT_TRUE(db.SetPassword({}));
    EXPECT_TRUE(db.Open(path));
}

TEST(Compaction, AFileThatIsNotAWholeLogIsRefusedAndTheBackupKept)
{
    const QString made = MakeYearFile("compact-bad-source");
    const QByteArray whole = testenv::FileBytes(made);
    const int page = (uchar(whole[16]) << 8) | uchar(whole[17]);
    const std::vector<std::pair<const char*, QByteArray>> bad = {
        {"is empty", QByteArray()},
        {"is cut short", whole.left(whole.size() - page)},
        {"is cut short", whole.left(whole.size() - 100)},
        {"is not a Quillmere log", QByteArray("%PDF-1.4 a report")},
    };
    for (const auto& [why, content] : bad) {
        const QString path = MakeYearFile("compact-bad");
        ASSERT_TRUE(CompactDB(path)); // 2024.BAK: the good file
        const QString bak = QDir(FolderOf(path)).filePath("2024.BAK");
        const QByteArray kept = testenv::FileBytes(bak);
        {
            QFile f(path);
            ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
            f.write(content);
        }
        const DbResult compacted = CompactDB(path);
        EXPECT_FALSE(compacted) << why;
        EXPECT_TRUE(compacted.Message.contains(why)) << compacted.Message.toStdString();
        EXPECT_TRUE(compacted.Message.contains("2024.BAK is kept as it is"));
        EXPECT_EQ(testenv::FileBytes(bak), kept) << why;
        EXPECT_EQ(testenv::FileBytes(path), content) << why;
    }
}
