// SPDX-License-Identifier: GPL-3.0-or-later
// Repair over damaged copies of a filled year holding the angler's entries and one long note
// on overflow pages: every record whose page is intact must come back byte for byte (checked
// with plain SQL against the file before the damage), the message must count them, and no
// value outside its column's range may remain.
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

constexpr int LongNoteDay = 150;
constexpr int MarkedDay = 250;
constexpr std::size_t NotesColumn = 24; // the last of table1's columns

// A year with the angler's entries on four days, one of them a note of 9000 characters
// (three overflow pages), and a value to be damaged.
QString MakeYearWithEntries()
{
    const QString path = MakeYearFile("repair");
    PlainExec(path, "UPDATE table1 SET TotalTaken = DBID % 7 + 1, TakenWith = 'spoon ' || DBID, "
                    "Notes = 'entry ' || DBID WHERE DBID IN (3, 150, 200, 301)");
    PlainExec(path, "WITH RECURSIVE n(i) AS (SELECT 0 UNION ALL SELECT i + 1 FROM n WHERE i < 899) "
                    "UPDATE table1 SET Notes = (SELECT group_concat(printf('cast %04d ', i), '') "
                    "FROM n) WHERE DBID = 150");
    PlainExec(path, "UPDATE table1 SET DaylightHours = 12.345 WHERE DBID = 250");
    return path;
}

int PageSize(const QByteArray& file) { return (uchar(file[16]) << 8) | uchar(file[17]); }

qint64 PageHolding(const QByteArray& file, const QByteArray& text)
{
    return file.indexOf(text) / PageSize(file) * PageSize(file);
}

// The start of the page holding the day's record: its date's text is only there.
qint64 RecordPage(const QByteArray& file, int day)
{
    return PageHolding(file, QDate(Year, 1, 1).addDays(day - 1).toString("yyyy-MM-dd").toLatin1());
}

using Stretches = std::vector<std::pair<qint64, qint64>>;

// A damage to the file's bytes: the stretches whose records may be lost, and the length the
// file is cut to. `Kept` is the count of records that must come back (-1: those of intact
// pages), `Note` what remains of the long note: 'w' whole, 'c' cut with a remark, '?' either.
struct Damage {
    const char* Name;
    std::function<Stretches(QByteArray& bytes, int page, const QString& path)> Apply;
    int Kept = -1;
    int Marked = 0;
    char Note = '?';
};

Stretches Zero(QByteArray& bytes, qint64 from, qint64 size)
{
    bytes.replace(from, size, QByteArray(size, '\0'));
    return {{from, from + size}};
}

Stretches Cut(QByteArray& bytes, qint64 to)
{
    bytes.truncate(to);
    return {};
}

const std::vector<Damage> Damages = {
    // Damage the engine may still open past.
    {"root page",
     [](QByteArray& bytes, int page, const QString& path) {
         const qint64 root =
             PlainColumn(path, "select rootpage from sqlite_master where name = 'table1'")
                 .at(0)
                 .toLongLong();
         bytes.replace((root - 1) * page, 24, QByteArray(24, '\xff'));
         return Stretches{};
     },
     DaysInYear, 0, 'w'},
    {"leaf header",
     [](QByteArray& bytes, int, const QString&) {
         bytes.replace(PageHolding(bytes, "row-100"), 8, QByteArray(8, 'U'));
         return Stretches{};
     },
     DaysInYear, 0, 'w'},
    {"overflow page",
     [](QByteArray& bytes, int page, const QString&) {
         return Zero(bytes, PageHolding(bytes, "cast 0450 "), page);
     },
     DaysInYear, 0, 'c'},
    {"a value the engine's own check cannot see",
     [](QByteArray& bytes, int, const QString&) {
         // 12.345 as the file stores a real, big-endian, overwritten with about -2e121.
         const qint64 at = bytes.indexOf(QByteArray::fromHex("4028b0a3d70a3d71"));
         bytes.replace(at, 8, QByteArray::fromHex("d9123456789abcde"));
         return Stretches{{at, at + 8}};
     },
     DaysInYear, 1, 'w'},
    // Damage the engine cannot open past.
    {"cut by its last page",
     [](QByteArray& bytes, int page, const QString&) { return Cut(bytes, bytes.size() - page); }},
    {"cut inside a page", [](QByteArray& bytes, int page,
                             const QString&) { return Cut(bytes, bytes.size() - 3 * page - 700); }},
    {"cut to less than half",
     [](QByteArray& bytes, int, const QString&) { return Cut(bytes, bytes.size() / 2 - 123); }},
    {"first page zeroed",
     [](QByteArray& bytes, int page, const QString&) { return Zero(bytes, 0, page); }},
    {"garbage in the middle",
     [](QByteArray& bytes, int page, const QString&) {
         const qint64 from = bytes.size() / 2 - page / 3;
         std::uint32_t x = 2463534242u; // xorshift: the same garbage every run
         for (qint64 i = from; i < from + page; ++i) {
             x ^= x << 13, x ^= x >> 17, x ^= x << 5;
             bytes[i] = char(x);
         }
         return Stretches{{from, from + page}};
     }},
    {"a leaf page copied over another (row ids twice)",
     [](QByteArray& bytes, int page, const QString&) {
         const qint64 to = RecordPage(bytes, 200);
         bytes.replace(to, page, bytes.mid(RecordPage(bytes, 100), page));
         return Stretches{{to, to + page}};
     }},
};

} // namespace

TEST(Repair, EveryRecordOfAnIntactPageComesBackByteExact)
{
    const QString remark = " [repair: the rest of this note could not be read]";
    for (const Damage& damage : Damages) {
        const std::string where = damage.Name;
        const QString path = MakeYearWithEntries();
        const auto original = PlainRows(path, "select * from table1 order by DBID");
        const QString longNote = original[LongNoteDay - 1][NotesColumn].toString();
        ASSERT_EQ(longNote.size(), 9000);
        const QByteArray intact = testenv::FileBytes(path);
        const int page = PageSize(intact);
        QByteArray bytes = intact;
        const Stretches hit = damage.Apply(bytes, page, path);
        testenv::WriteFile(path, bytes);

        const RepairReport report = RepairYearFile(path);
        ASSERT_TRUE(report.Result) << where << ": " << report.Result.Message.toStdString();
        EXPECT_TRUE(report.Damaged) << where;
        EXPECT_EQ(report.Kept + report.Unreadable, DaysInYear) << where;
        EXPECT_EQ(CountRows(path, "table1"), report.Kept) << where;
        EXPECT_TRUE(report.Summary().startsWith(QString("%1 records kept, %2 could not be read.")
                                                    .arg(report.Kept)
                                                    .arg(report.Unreadable)))
            << report.Summary().toStdString();
        EXPECT_TRUE(report.Summary().contains("kept as 2024.BAD")) << where;
        EXPECT_EQ(testenv::FileBytes(QDir(QFileInfo(path).absolutePath()).filePath("2024.BAD")),
                  bytes)
            << where;
        EXPECT_EQ(PlainColumn(path, QString::fromUtf8(testenv::FileBytes(QUILLMERE_TESTDATA
                                                                         "/out_of_range.sql")))[0],
                  0)
            << where;

        std::map<int, std::vector<QVariant>> repaired;
        for (auto& row : PlainRows(path, "select * from table1"))
            repaired[row[0].toInt()] = row;
        int intactRecords = 0;
        for (const auto& row : original) {
            const int day = row[0].toInt();
            const qint64 start = RecordPage(intact, day);
            if (day == LongNoteDay || start + page > bytes.size() ||
                std::any_of(hit.begin(), hit.end(), [&](const auto& h) {
                    return h.first < start + page && start < h.second;
                }))
                continue;
            ++intactRecords;
            ASSERT_TRUE(repaired.count(day)) << where << ": day " << day;
            EXPECT_EQ(repaired.at(day), row) << where << ": day " << day;
        }
        EXPECT_GT(intactRecords, 0) << where;
        EXPECT_GE(report.Kept, damage.Kept < 0 ? intactRecords : damage.Kept) << where;
        EXPECT_EQ(report.Marked, damage.Marked) << where;
        if (damage.Marked) {
            EXPECT_EQ(repaired.at(MarkedDay)[NotesColumn],
                      "row-250 [repair: DaylightHours could not be read]");
        }
        const QString note = repaired.at(LongNoteDay)[NotesColumn].toString();
        if (damage.Note == 'w') {
            EXPECT_EQ(note, longNote) << where;
        } else if (damage.Note == 'c') {
            ASSERT_TRUE(note.endsWith(remark)) << note.right(80).toStdString();
            const QString kept = note.chopped(remark.size());
            EXPECT_TRUE(longNote.startsWith(kept)) << kept.right(40).toStdString();
            EXPECT_GE(kept.size(), 400); // at least what the record's own page holds
            EXPECT_LT(kept.size(), longNote.size());
        }
    }
}

TEST(Repair, NumberingGoesOnAfterTheHighestRecordNumberNotTheLastKept)
{
    const QString path = MakeYearFile("repair-numbering", 300);
    PlainExec(path, "delete from table1 where dbid > 295");
    QByteArray bytes = testenv::FileBytes(path);
    Zero(bytes, PageHolding(bytes, "row-150"), PageSize(bytes));
    testenv::WriteFile(path, bytes);
    ASSERT_TRUE(RepairYearFile(path).Result);
    PlainExec(path, "insert into table1 (Notes) values ('new')");
    EXPECT_EQ(PlainIds(path, "select DBID from table1 where Notes = 'new'"), std::vector<int>{301});
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
