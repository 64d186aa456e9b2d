// SPDX-License-Identifier: GPL-3.0-or-later
// Repair over damaged copies of a filled year holding the angler's entries: the table's root
// page, a leaf page's header, a long note's overflow page and a value inside a record are
// overwritten; every record whose page is intact must come back, the message must count
// them, and no value outside its column's range may remain. Checked with plain SQL. A whole
// leaf page zeroed loses only that page's records.
#include "db/datacontrol.h"
#include "logdb/logfiles.h"
#include "support/filledyear.h"
#include "support/logfixture.h"
#include "support/testenv.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>

using namespace logtest;

namespace {

const QString LongNote = [] {
    QString note;
    for (int i = 0; i < 900; ++i)
        note += QString("cast %1 ").arg(i, 4, 10, QChar('0'));
    return note; // about 9900 characters: three overflow pages
}();

// Days with the angler's own entries.
const std::vector<int> EntryDays = {3, 150, 200, 301};

QString MakeYearWithEntries(const QString& name)
{
    const QString path = MakeYearFile(name);
    Database db;
    EXPECT_TRUE(db.Open(path));
    for (const int day : EntryDays)
        EXPECT_TRUE(
            db.UpdateRecord({"table1"}, "DBID", day,
                            {{"TotalTaken", day % 7 + 1},
                             {"TakenWith", QString("spoon %1").arg(day)},
                             {"Notes", day == 150 ? LongNote : QString("entry %1").arg(day)}}));
    EXPECT_TRUE(db.UpdateRecord({"table1"}, "DBID", 250, {{"DaylightHours", 12.345}}));
    return path;
}

void Overwrite(const QString& path, qint64 at, const QByteArray& with)
{
    QFile f(path);
    ASSERT_TRUE(f.open(QIODevice::ReadWrite));
    ASSERT_TRUE(f.seek(at));
    ASSERT_EQ(f.write(with), with.size());
}

int PageSize(const QByteArray& file) { return (uchar(file[16]) << 8) | uchar(file[17]); }

qint64 PageStart(const QByteArray& file, const QByteArray& holding)
{
    const qint64 at = file.indexOf(holding);
    EXPECT_GT(at, 0) << holding.toStdString();
    return at / PageSize(file) * PageSize(file);
}

qint64 RootPageStart(const QString& path)
{
    const QVariant root =
        PlainColumn(path, "select rootpage from sqlite_master where name = 'table1'").at(0);
    return (root.toLongLong() - 1) * PageSize(testenv::FileBytes(path));
}

// Plain SQL over the repaired file: the notes by record number, and no value outside what
// its column can hold.
std::map<int, QString> NotesByDay(const QString& path)
{
    std::map<int, QString> notes;
    for (const auto& row : PlainRows(path, "select DBID, Notes, TakenWith from table1"))
        notes[row[0].toInt()] = row[1].toString();
    return notes;
}

void ExpectNothingOutOfRange(const QString& path, const std::string& where)
{
    EXPECT_EQ(PlainColumn(path, "select count(*) from table1 where IllumPercent not between 0 "
                                "and 100 or GraphicType not between 0 and 4 or DaylightHours not "
                                "between 0 and 24 or date(JulianDate) is not JulianDate or "
                                "MoonRise > 24 or MoonRise < -1 or time(Major1) is not Major1 or "
                                "Month not between 1 and 12")
                  .at(0)
                  .toInt(),
              0)
        << where;
}

// Repairs and checks what every repair must give: counts that add up to the year, the
// message saying them, the original kept as .BAD, and nothing out of range.
RepairReport RepairAndCheck(const QString& path, const std::string& where)
{
    const RepairReport report = RepairYearFile(path);
    EXPECT_TRUE(report.Result) << where << ": " << report.Result.Message.toStdString();
    EXPECT_TRUE(report.Damaged) << where;
    EXPECT_EQ(report.Kept + report.Unreadable, DaysInYear) << where;
    EXPECT_EQ(CountRows(path, "table1"), report.Kept) << where;
    EXPECT_TRUE(report.Summary().startsWith(
        QString("%1 records kept, %2 could not be read.").arg(report.Kept).arg(report.Unreadable)))
        << report.Summary().toStdString();
    EXPECT_TRUE(report.Summary().contains("kept as 2024.BAD")) << where;
    EXPECT_TRUE(QFile::exists(QDir(QFileInfo(path).absolutePath()).filePath("2024.BAD")));
    ExpectNothingOutOfRange(path, where);
    return report;
}

void ExpectEntries(const std::map<int, QString>& notes, const std::string& where)
{
    for (const int day : EntryDays) {
        if (day == 150)
            continue;
        ASSERT_TRUE(notes.count(day)) << where << " day " << day;
        EXPECT_EQ(notes.at(day), QString("entry %1").arg(day)) << where;
    }
}

} // namespace

// Damage the engine may still open past: the table's root page, a leaf page's header, a long
// note's overflow page, a value inside a record that the engine's own check cannot see.
TEST(Repair, DamageInsideAnOpenableFileKeepsEveryRecordAndEveryEntry)
{
    const auto zeroPageOf = [](const QByteArray& text) {
        return [text](const QString& path) {
            const QByteArray file = testenv::FileBytes(path);
            Overwrite(path, PageStart(file, text), QByteArray(PageSize(file), '\0'));
        };
    };
    const struct {
        const char* Name;
        std::function<void(const QString&)> Damage;
        bool NoteCut; // the long note keeps what is before the damage
        int Marked;
    } cases[] = {
        {"root page",
         [](const QString& path) { Overwrite(path, RootPageStart(path), QByteArray(24, '\xff')); },
         false, 0},
        {"leaf header",
         [](const QString& path) {
             Overwrite(path, PageStart(testenv::FileBytes(path), "row-100"), QByteArray(8, 'U'));
         },
         false, 0},
        {"overflow page", zeroPageOf("cast 0450 "), true, 0},
        {"value",
         [](const QString& path) {
             // 12.345 as the file stores a real, big-endian, overwritten with about -2e121.
             const qint64 at =
                 testenv::FileBytes(path).indexOf(QByteArray::fromHex("4028b0a3d70a3d71"));
             ASSERT_GT(at, 0);
             Overwrite(path, at, QByteArray::fromHex("d9123456789abcde"));
         },
         false, 1},
    };
    for (const auto& c : cases) {
        const QString path = MakeYearWithEntries("repair-openable");
        c.Damage(path);
        const RepairReport report = RepairAndCheck(path, c.Name);
        EXPECT_EQ(report.Kept, DaysInYear) << c.Name;
        EXPECT_EQ(report.Marked, c.Marked) << c.Name;
        const auto notes = NotesByDay(path);
        ExpectEntries(notes, c.Name);
        EXPECT_EQ(notes.at(100), "row-100") << c.Name;
        EXPECT_EQ(notes.at(250),
                  c.Marked ? "row-250 [repair: DaylightHours could not be read]" : "row-250")
            << c.Name;
        const QString remark = " [repair: the rest of this note could not be read]";
        const QString note = notes.at(150);
        if (!c.NoteCut) {
            EXPECT_EQ(note, LongNote) << c.Name;
            continue;
        }
        ASSERT_TRUE(note.endsWith(remark)) << note.right(80).toStdString();
        const QString kept = note.chopped(remark.size());
        EXPECT_TRUE(LongNote.startsWith(kept)) << kept.right(40).toStdString();
        EXPECT_GE(kept.size(), 400); // at least what the record's own page holds
        EXPECT_LT(kept.size(), LongNote.size());
    }
}

TEST(Repair, NumberingGoesOnAfterTheHighestRecordNumberNotTheLastKept)
{
    const QString path = MakeYearFile("repair", 300);
    {
        Database db;
        ASSERT_TRUE(db.Open(path));
        ASSERT_TRUE(db.Execute("delete from table1 where dbid > 295"));
    }
    const QByteArray bytes = testenv::FileBytes(path);
    Overwrite(path, PageStart(bytes, "row-150"), QByteArray(PageSize(bytes), '\0'));
    ASSERT_TRUE(RepairYearFile(path).Result);
    DataControl data;
    data.SetDatabaseName(path);
    data.SetRecordSource("select * from table1");
    ASSERT_TRUE(data.Refresh());
    ASSERT_TRUE(data.AddNew());
    ASSERT_TRUE(data.Update());
    EXPECT_EQ(data.LastModified().toInt(), 301);
}

namespace {

// A damage to the file's bytes: the length it is cut to (the whole file when negative) and
// the stretches overwritten, with zeros, garbage, or another page of the file.
struct Damage {
    const char* Name;
    std::function<qint64(qint64 size, int page)> CutTo;
    std::function<void(QByteArray& bytes, int page, std::vector<std::pair<qint64, qint64>>&)>
        Overwrite;
};

qint64 WholeFile(qint64 size, int) { return size; }

void NoOverwrite(QByteArray&, int, std::vector<std::pair<qint64, qint64>>&) {}

// The start of the page holding the day's record: its date's text is only there.
qint64 RecordPage(const QByteArray& original, int day, int page)
{
    const QByteArray date = QDate(Year, 1, 1).addDays(day - 1).toString("yyyy-MM-dd").toLatin1();
    return original.indexOf(date) / page * page;
}

const std::vector<Damage> Damages = {
    {"cut by its last page", [](qint64 size, int page) { return size - page; }, NoOverwrite},
    {"cut inside a page", [](qint64 size, int page) { return size - 3 * page - 700; }, NoOverwrite},
    {"cut to less than half", [](qint64 size, int) { return size / 2 - 123; }, NoOverwrite},
    {"first page zeroed", WholeFile,
     [](QByteArray& bytes, int page, auto& hit) {
         bytes.replace(0, page, QByteArray(page, '\0'));
         hit.emplace_back(0, page);
     }},
    {"garbage in the middle", WholeFile,
     [](QByteArray& bytes, int page, auto& hit) {
         const qint64 from = bytes.size() / 2 - page / 3;
         QByteArray garbage(page, '\0');
         std::uint32_t x = 2463534242u; // xorshift: the same garbage every run
         for (char& c : garbage) {
             x ^= x << 13, x ^= x >> 17, x ^= x << 5;
             c = char(x);
         }
         bytes.replace(from, garbage.size(), garbage);
         hit.emplace_back(from, from + garbage.size());
     }},
    {"a leaf page copied over another (row ids twice)", WholeFile,
     [](QByteArray& bytes, int page, auto& hit) {
         const QByteArray original = bytes;
         const qint64 from = RecordPage(original, 100, page), to = RecordPage(original, 200, page);
         bytes.replace(to, page, original.mid(from, page));
         hit.emplace_back(to, to + page);
     }},
};

} // namespace

TEST(Repair, AFileTheEngineCannotOpenGivesBackEveryRecordOfItsIntactPagesByteExact)
{
    for (const Damage& damage : Damages) {
        const std::string where = damage.Name;
        const QString path = MakeYearWithEntries("repair-unopenable");
        const auto original = PlainRows(path, "select * from table1 order by DBID");
        QByteArray bytes = testenv::FileBytes(path);
        const int page = PageSize(bytes);
        const QByteArray intact = bytes;
        std::vector<std::pair<qint64, qint64>> hit;
        damage.Overwrite(bytes, page, hit);
        bytes.truncate(damage.CutTo(bytes.size(), page));
        testenv::WriteFile(path, bytes);
        const RepairReport report = RepairAndCheck(path, where);
        std::map<qint64, std::vector<QVariant>> repaired;
        for (auto& row : PlainRows(path, "select * from table1"))
            repaired[row[0].toLongLong()] = row;
        int expected = 0;
        for (const auto& row : original) {
            const int day = row[0].toInt();
            const qint64 start = RecordPage(intact, day, page);
            const bool onIntactPage = day != 150 && start + page <= bytes.size() &&
                                      std::none_of(hit.begin(), hit.end(), [&](const auto& h) {
                                          return h.first < start + page && start < h.second;
                                      });
            if (!onIntactPage)
                continue;
            ++expected;
            ASSERT_TRUE(repaired.count(day)) << where << ": day " << day;
            EXPECT_EQ(repaired.at(day), row) << where << ": day " << day;
        }
        EXPECT_GT(expected, 0) << where;
        EXPECT_GE(report.Kept, expected) << where;
    }
}

TEST(Repair, ASoundFileIsLeftAloneAndAnEmptyOrForeignOneIsKeptAsItIs)
{
    const QString path = MakeYearFile("repair-sound", 30);
    const QByteArray sound = testenv::FileBytes(path);
    EXPECT_TRUE(RepairYearFile(path).Result);
    EXPECT_EQ(testenv::FileBytes(path), sound);
    EXPECT_FALSE(QFileInfo::exists(QDir(QFileInfo(path).absolutePath()).filePath("2024.BAD")));
    for (const QByteArray& content :
         {QByteArray(), QByteArray("year,notes\n2024,none\n"), QByteArray(4096, 'x')}) {
        testenv::WriteFile(path, content);
        const RepairReport report = RepairYearFile(path);
        EXPECT_FALSE(report.Result) << content.size();
        EXPECT_TRUE(
            report.Result.Message.contains(content.isEmpty() ? "is empty" : "kept as it is"))
            << report.Result.Message.toStdString();
        EXPECT_EQ(testenv::FileBytes(path), content);
    }
}
