#include "logdb/logimport.h"

#include "db/storedforms.h"
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
    std::vector<std::pair<QString, int>> Catch; // column name, field index
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
        else if (std::none_of(known.begin(), known.end(),
                              [&](const ColumnInfo& k) { return same(k.Name); }))
            issues.push_back(
                {first.Line, QStringLiteral("unknown column \"%1\" is ignored").arg(name)});
    }
    return header;
}

bool HasValue(const QVariant& v) { return !v.isNull() && !v.toString().trimmed().isEmpty(); }

// Date (stored form) -> whether the record holds an entry, for every record of the file.
DbResult ReadEntries(Database& db, std::map<QString, bool>& holdsEntry)
{
    QSqlQuery q(db.Connection());
    if (!q.exec(QStringLiteral("SELECT JulianDate, ") + CatchColumns.join(", ") +
                QStringLiteral(" FROM table1")))
        return DbResult::Failure(ErrorText(q.lastError()));
    while (q.next()) {
        bool held = false;
        for (int i = 1; i <= CatchColumns.size(); ++i)
            held = held || HasValue(q.value(i));
        holdsEntry[q.value(0).toString()] = held;
    }
    return DbResult::Success();
}

struct RowCheck {
    const Header& Head;
    int Year;
    const std::map<QString, bool>& HoldsEntry;
    std::set<QString> Seen;
};

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
    if (!check.Seen.insert(row.Date).second)
        return problem(
            QStringLiteral("%1 comes a second time; this line is left out").arg(dateText));
    bool any = false, bad = false;
    for (const auto& [column, index] : check.Head.Catch) {
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

DbResult PlanImport(const QString& yearFile, int year, const QByteArray& csv, ImportPlan& plan)
{
    plan = {};
    const std::vector<CsvRecord> records =
        ReadCsv(std::string_view(csv.constData(), size_t(csv.size())));
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
    for (size_t i = 1; i < records.size(); ++i)
        if (std::optional<ImportRow> row = CheckRow(records[i], check, plan.Issues))
            plan.Rows.push_back(std::move(*row));
    return DbResult::Success();
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
    return held;
}

DbResult WriteRow(const QSqlDatabase& link, const ImportRow& row, int& written)
{
    QStringList sets;
    for (const auto& field : row.Fields)
        sets << QuotedName(field.first) + QStringLiteral(" = ?");
    QSqlQuery q(link);
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
    return DbResult::Success();
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
            if (DbResult wrote = WriteRow(link, row, count.Written); !wrote)
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
