// SPDX-License-Identifier: GPL-3.0-or-later
#include "logdb/logrepair.h"

#include "calendar/calendar.h"
#include "db/database.h"
#include "logdb/pagesalvage.h"

#include <QFile>
#include <QSqlQuery>
#include <QSqlRecord>

#include <array>

namespace {

constexpr auto CutRemark = " [repair: the rest of this note could not be read]";

// A condition that holds for every value a column of the log can rightly have.
struct ColumnRange {
    const char* Column;
    const char* Valid;
};

constexpr std::array<ColumnRange, 20> Ranges = {{
    // date() gives text, which the column's numeric affinity leaves alone in the comparison.
    {"JulianDate", "date(JulianDate) = JulianDate AND date(JulianDate) BETWEEN '1900-01-01' "
                   "AND '2500-12-31'"},
    {"IllumPercent", "IllumPercent BETWEEN 0 AND 100"},
    {"GraphicType", "GraphicType BETWEEN 0 AND 4"},
    {"MoonAge", "MoonAge BETWEEN 0 AND 30"},
    {"Waxing", "Waxing IN (0, 1)"},
    {"Major1", "time(Major1) = Major1"},
    {"Major2", "time(Major2) = Major2"},
    {"SunRise", "time(SunRise) = SunRise"},
    {"SunSet", "time(SunSet) = SunSet"},
    {"MoonRise", "MoonRise = -1 OR (MoonRise >= 0 AND MoonRise < 24)"},
    {"MoonSet", "MoonSet = -1 OR (MoonSet >= 0 AND MoonSet < 24)"},
    {"Minor1", "Minor1 = -1 OR (Minor1 >= 0 AND Minor1 < 24)"},
    {"Minor2", "Minor2 = -1 OR (Minor2 >= 0 AND Minor2 < 24)"},
    {"DaylightHours", "DaylightHours BETWEEN 0 AND 24"},
    {"Month", "Month BETWEEN 1 AND 12"},
    {"DayOfWeek_", "DayOfWeek_ BETWEEN 1 AND 7"},
    {"Perigee", "Perigee IN (-1, 0, 1, 2)"},
    {"TotalTaken", "TotalTaken >= 0 AND TotalTaken < 1000000"},
    {"TakenWith", "length(TakenWith) <= 255"},
    {"PeakTime", "length(PeakTime) <= 50"},
}};
static_assert(FirstYear == 1900 && LastYear == 2500, "the JulianDate range names the years");

QVariant ToVariant(const SalvagedValue& value)
{
    if (const auto* i = std::get_if<std::int64_t>(&value))
        return QVariant(qlonglong(*i));
    if (const auto* d = std::get_if<double>(&value))
        return QVariant(*d);
    if (const auto* t = std::get_if<SalvagedText>(&value))
        return t->Blob ? QVariant(QByteArray::fromStdString(t->Bytes))
                       : QVariant(QString::fromUtf8(t->Bytes.data(), qsizetype(t->Bytes.size())));
    return QVariant();
}

bool HoldsRow(const QSqlDatabase& db, const QString& table, std::int64_t rowid)
{
    QSqlQuery q(db);
    q.prepare(QStringLiteral("SELECT 1 FROM %1 WHERE rowid = ?").arg(QuotedName(table)));
    q.addBindValue(qlonglong(rowid));
    return q.exec() && q.next();
}

} // namespace

int AddSalvagedRecords(const QString& damagedPath, const QSqlDatabase& to, const QString& table)
{
    QFile file(damagedPath);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray bytes = file.readAll();
    const std::vector<std::uint8_t> image(bytes.begin(), bytes.end());
    QSqlRecord columns = to.record(table);
    const int notes = columns.indexOf(QStringLiteral("Notes"));
    QSqlQuery insert(to);
    insert.prepare(QStringLiteral("INSERT INTO %1 VALUES (%2)")
                       .arg(QuotedName(table), Placeholders(columns.count())));
    int added = 0;
    for (const SalvagedRecord& record : SalvageRecords(image, std::size_t(columns.count()))) {
        if (HoldsRow(to, table, record.RowId))
            continue;
        for (int i = 0; i < columns.count(); ++i) {
            QVariant value = i == 0 ? QVariant(qlonglong(record.RowId))
                                    : ToVariant(record.Values[std::size_t(i)]);
            if (i == notes && record.Cut) {
                // A page lost from the chain reads as zeros; nobody types those.
                QString kept = value.toString();
                while (kept.endsWith(QChar(0)))
                    kept.chop(1);
                value = kept + QLatin1String(CutRemark);
            }
            insert.addBindValue(value);
        }
        added += insert.exec();
    }
    return added;
}

int OutOfRangeValues(const QSqlDatabase& db, bool empty)
{
    const QSqlRecord columns = db.record(QStringLiteral("table1"));
    const bool hasNotes = columns.contains(QStringLiteral("Notes"));
    int count = 0;
    QSqlQuery q(db);
    for (const ColumnRange& range : Ranges) {
        if (!columns.contains(QLatin1String(range.Column)))
            continue;
        const QString wrong =
            QStringLiteral("NOT (%1 IS NULL OR (%2))").arg(range.Column, range.Valid);
        if (q.exec(QStringLiteral("SELECT count(*) FROM table1 WHERE ") + wrong) && q.next())
            count += q.value(0).toInt();
        if (!empty)
            continue;
        const QString remark = hasNotes ? QStringLiteral(", Notes = coalesce(Notes, '') || "
                                                         "' [repair: %1 could not be read]'")
                                              .arg(range.Column)
                                        : QString();
        q.exec(QStringLiteral("UPDATE table1 SET %1 = NULL%2 WHERE %3")
                   .arg(range.Column, remark, wrong));
    }
    return count;
}
