// SPDX-License-Identifier: GPL-3.0-or-later
#include "logdb/logimport.h"

#include "db/storedforms.h"
#include "logdb/catchexport.h"
#include "logdb/catchvalues.h"
#include "logdb/csvread.h"
#include "logdb/logfiles.h"
#include "logdb/yearlock.h"

#include <QFile>
#include <QSqlQuery>
#include <algorithm>

#include <map>
#include <set>

namespace {

const QString DateColumn = QStringLiteral("JulianDate");
const QStringList CatchColumns = {QStringLiteral("TotalTaken"), QStringLiteral("TakenWith"),
                                  QStringLiteral("PeakTime"), QStringLiteral("Notes")};

// Where each column the import reads sits in the file's header.
struct Header {
    int Date = -1;
    std::vector<std::pair<QString, int>> Catch;   // column name, field index
    std::vector<std::pair<QString, int>> Catches; // the catches' columns, field index
    size_t Width = 0;
};

Header ReadHeader(const CsvRecord& first, const std::vector<ColumnInfo>& known,
                  std::vector<ImportIssue>& issues)
{
    Header header;
    header.Width = first.Fields.size();
    for (size_t i = 0; i < first.Fields.size(); ++i) {
        const QString name = QString::fromStdString(first.Fields[i]).trimmed();
        const auto same = [&](const QString& n) {
            return n.compare(name, Qt::CaseInsensitive) == 0;
        };
        if (same(DateColumn))
            header.Date = int(i);
        else if (const auto c = std::find_if(CatchColumns.begin(), CatchColumns.end(), same);
                 c != CatchColumns.end())
            header.Catch.emplace_back(*c, int(i));
        else if (IsCatchExportColumn(name))
            header.Catches.emplace_back(name, int(i));
        else if (std::none_of(known.begin(), known.end(),
                              [&](const ColumnInfo& k) { return same(k.Name); }))
            issues.push_back(
                {first.Line, QStringLiteral("unknown column \"%1\" is ignored").arg(name)});
    }
    return header;
}

bool HasValue(const QVariant& v) { return !v.isNull() && !v.toString().trimmed().isEmpty(); }

// Date (stored form) -> whether the record holds an entry or catches, for every record of
// the file.
DbResult ReadEntries(Database& db, std::map<QString, bool>& holdsEntry)
{
    std::vector<Catch> catches;
    if (DbResult read = ReadYearCatches(db.Path(), catches); !read)
        return read;
    for (const Catch& c : catches)
        holdsEntry[c.Date] = true;
    QSqlQuery q(db.Connection());
    if (!q.exec(QStringLiteral("SELECT JulianDate, ") + CatchColumns.join(", ") +
                QStringLiteral(" FROM table1")))
        return DbResult::Failure(ErrorText(q.lastError()));
    while (q.next()) {
        bool held = false;
        for (int i = 1; i <= CatchColumns.size(); ++i)
            held = held || HasValue(q.value(i));
        holdsEntry[q.value(0).toString()] |= held;
    }
    return DbResult::Success();
}

struct RowCheck {
    const Header& Head;
    int Year;
    const std::map<QString, bool>& HoldsEntry;
    std::set<QString> Seen;
};

// The catch the row's catch cells hold, if any; false with the issue added when they cannot
// be read.
bool ReadRowCatch(const CsvRecord& record, const Header& head, const QString& date,
                  std::optional<Catch>& c, std::vector<ImportIssue>& issues)
{
    std::vector<QString> columns, cells;
    for (const auto& [column, index] : head.Catches) {
        columns.push_back(column);
        cells.push_back(QString::fromStdString(record.Fields[size_t(index)]));
    }
    QString why;
    c = CatchOfCells(date, columns, cells, why);
    if (!why.isEmpty())
        issues.push_back({record.Line, why});
    return why.isEmpty();
}

// The row to write, or nothing with the row's problems added to the issues.
std::optional<ImportRow> CheckRow(const CsvRecord& record, RowCheck& check,
                                  std::vector<ImportIssue>& issues)
{
    const auto problem = [&](const QString& text) {
        issues.push_back({record.Line, text});
        return std::nullopt;
    };
    const auto notText = [](const std::string& field) {
        return !QByteArrayView(field.data(), qsizetype(field.size())).isValidUtf8();
    };
    if (std::any_of(record.Fields.begin(), record.Fields.end(), notText))
        return problem(
            QStringLiteral("the line is not UTF-8 text and is left out; save the file as UTF-8"));
    if (record.Fields.size() != check.Head.Width)
        return problem(QStringLiteral("%1 fields where the header has %2")
                           .arg(record.Fields.size())
                           .arg(check.Head.Width));
    const QString dateText =
        QString::fromStdString(record.Fields[size_t(check.Head.Date)]).trimmed();
    const std::optional<std::string> date = StoredDate(dateText.toStdString());
    if (!date)
        return problem(QStringLiteral("\"%1\" is not a date").arg(dateText));
    ImportRow row{record.Line, QString::fromStdString(*date), {}, false};
    if (row.Date.left(4).toInt() != check.Year)
        return problem(QStringLiteral("%1 is not in %2").arg(dateText).arg(check.Year));
    const auto held = check.HoldsEntry.find(row.Date);
    if (held == check.HoldsEntry.end())
        return problem(QStringLiteral("the year file has no record for %1").arg(dateText));
    std::optional<Catch> caught;
    if (!ReadRowCatch(record, check.Head, row.Date, caught, issues))
        return std::nullopt;
    if (caught)
        row.Catches.push_back(*caught);
    if (!check.Seen.insert(row.Date).second) {
        if (caught) // one more catch of a day already read
            return row;
        return problem(
            QStringLiteral("%1 comes a second time; this line is left out").arg(dateText));
    }
    bool any = caught.has_value(), bad = false;
    for (const auto& [column, index] : check.Head.Catch) {
        if (caught && column == QLatin1String("TotalTaken"))
            continue; // the day's total follows its catches
        QString why;
        const auto value =
            CatchValue(column, QString::fromStdString(record.Fields[size_t(index)]), why);
        if (!value) {
            issues.push_back({record.Line, column + QLatin1Char(' ') + why});
            bad = true;
            continue;
        }
        any = any || !value->isNull();
        row.Fields.emplace_back(column, *value);
    }
    if (bad || !any)
        return std::nullopt; // a day without a catch entry has nothing to bring in
    row.Occupied = held->second;
    if (row.Occupied)
        issues.push_back({record.Line, QStringLiteral("%1 already holds an entry").arg(dateText)});
    return row;
}

} // namespace

int ImportPlan::OccupiedRows() const
{
    return int(
        std::count_if(Rows.begin(), Rows.end(), [](const ImportRow& r) { return r.Occupied; }));
}

DbResult ReadImportFile(const QString& path, QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return DbResult::Failure(
            QStringLiteral("%1 cannot be read: %2").arg(path, file.errorString()));
    bytes = file.read(MostImportBytes + 1);
    if (bytes.size() > MostImportBytes)
        return DbResult::Failure(
            QStringLiteral("%1 holds more than %2 MB, far more than a year of catch entries")
                .arg(path)
                .arg(MostImportBytes / (1024 * 1024)));
    if (file.error() != QFileDevice::NoError)
        return DbResult::Failure(
            QStringLiteral("%1 cannot be read: %2").arg(path, file.errorString()));
    return DbResult::Success();
}

namespace {

DbResult PlanRecords(const QString& yearFile, int year, const std::vector<CsvRecord>& records,
                     ImportPlan& plan)
{
    plan = {};
    if (records.empty())
        return DbResult::Failure(QStringLiteral("The file holds no lines."));
    Database db;
    if (DbResult opened = db.Open(yearFile); !opened)
        return opened;
    const Header header = ReadHeader(records.front(), db.Columns(LogTableName), plan.Issues);
    if (header.Date < 0)
        return DbResult::Failure(
            QStringLiteral("The first line names no %1 column.").arg(DateColumn));
    std::map<QString, bool> holdsEntry;
    if (DbResult read = ReadEntries(db, holdsEntry); !read)
        return read;
    RowCheck check{header, year, holdsEntry, {}};
    std::map<QString, size_t> rowOfDate;
    for (size_t i = 1; i < records.size(); ++i) {
        std::optional<ImportRow> row = CheckRow(records[i], check, plan.Issues);
        if (!row)
            continue;
        if (const auto known = rowOfDate.find(row->Date); known != rowOfDate.end()) {
            auto& catches = plan.Rows[known->second].Catches;
            catches.insert(catches.end(), row->Catches.begin(), row->Catches.end());
            continue;
        }
        if (row->Fields.empty() && !check.Head.Catch.empty())
            continue; // more catches of a day whose first line was left out, as its issue says
        rowOfDate[row->Date] = plan.Rows.size();
        plan.Rows.push_back(std::move(*row));
    }
    return DbResult::Success();
}

} // namespace

DbResult PlanImport(const QString& yearFile, int year, const QByteArray& csv, ImportPlan& plan)
{
    return PlanRecords(yearFile, year,
                       ReadCsv(std::string_view(csv.constData(), size_t(csv.size()))), plan);
}

DbResult PlanJsonImport(const QString& yearFile, int year, const QByteArray& json, ImportPlan& plan)
{
    std::vector<CsvRecord> records;
    if (DbResult read = RecordsOfJson(json, records); !read)
        return read;
    return PlanRecords(yearFile, year, records, plan);
}

namespace {

// Whether the day's record holds an entry now, read inside the write transaction: another
// program may have written the day since the plan was made.
bool HoldsEntryNow(const QSqlDatabase& link, const QString& date)
{
    QSqlQuery q(link);
    q.prepare(QStringLiteral("SELECT ") + CatchColumns.join(", ") +
              QStringLiteral(" FROM table1 WHERE JulianDate = ?"));
    q.addBindValue(date);
    bool held = false;
    if (q.exec() && q.next())
        for (int i = 0; i < CatchColumns.size(); ++i)
            held = held || HasValue(q.value(i));
    QSqlQuery caught(link); // fails, holding nothing, in a file without catches
    caught.prepare(QStringLiteral("SELECT COUNT(*) FROM Catches WHERE JulianDate = ?"));
    caught.addBindValue(date);
    return held || (caught.exec() && caught.next() && caught.value(0).toInt() > 0);
}

// The row's catches in place of the day's, after its entry so that the total follows them.
DbResult WriteCatches(Database& db, const ImportRow& row)
{
    std::vector<Catch> catches = row.Catches;
    if (catches.empty())
        return DbResult::Success();
    if (DbResult caught = ReplaceDayCatches(db, row.Date, catches); !caught)
        return DbResult::Failure(
            QStringLiteral("Line %1: %2. Nothing was imported.").arg(row.Line).arg(caught.Message));
    return DbResult::Success();
}

DbResult WriteRow(Database& db, const ImportRow& row, int& written)
{
    if (row.Fields.empty()) {
        ++written;
        return WriteCatches(db, row);
    }
    QStringList sets;
    for (const auto& field : row.Fields)
        sets << QuotedName(field.first) + QStringLiteral(" = ?");
    QSqlQuery q(db.Connection());
    q.prepare(QStringLiteral("UPDATE table1 SET ") + sets.join(", ") +
              QStringLiteral(" WHERE JulianDate = ?"));
    for (const auto& field : row.Fields)
        q.addBindValue(field.second);
    q.addBindValue(row.Date);
    if (!q.exec())
        return DbResult::Failure(QStringLiteral("Line %1: %2. Nothing was imported.")
                                     .arg(row.Line)
                                     .arg(ErrorText(q.lastError())));
    written += q.numRowsAffected();
    return WriteCatches(db, row);
}

} // namespace

DbResult ApplyImport(const QString& yearFile, const ImportPlan& plan, ImportChoice choice,
                     ImportCount& count)
{
    count = {};
    const YearFileLock lock(yearFile);
    if (!lock.Held())
        return DbResult::Failure(lock.Message() + QStringLiteral(" Nothing was imported."));
    Database db;
    if (DbResult opened = db.Open(yearFile); !opened)
        return opened;
    QSqlDatabase link = db.Connection();
    DbResult applied = db.InTransaction([&] {
        for (const ImportRow& row : plan.Rows) {
            if (choice == ImportChoice::Skip && (row.Occupied || HoldsEntryNow(link, row.Date))) {
                count.GainedEntry += row.Occupied ? 0 : 1;
                continue;
            }
            if (DbResult wrote = WriteRow(db, row, count.Written); !wrote)
                return wrote;
        }
        return DbResult::Success();
    });
    if (!applied)
        count = {}; // rolled back
    return applied;
}

QString GainedEntryNote(const ImportCount& count)
{
    return count.GainedEntry == 0
               ? QString()
               : QStringLiteral("; %1 day(s) that another program gave an entry meanwhile "
                                "were left as they are")
                     .arg(count.GainedEntry);
}

QStringList IssueLines(const ImportPlan& plan)
{
    QStringList lines;
    for (const ImportIssue& issue : plan.Issues)
        lines << QStringLiteral("Line %1: %2").arg(issue.Line).arg(issue.Text);
    return lines;
}
