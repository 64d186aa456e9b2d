// SPDX-License-Identifier: GPL-3.0-or-later
#include "logdb/logexport.h"

#include "astro/timebase.h"
#include "db/storedforms.h"

#include <array>

namespace {

QString Formatted(const QVariant& stored, const char* pattern)
{
    const auto text = FormatStored(stored.toString().toStdString(), pattern);
    return text ? QString::fromStdString(*text) : stored.toString();
}

} // namespace

bool IsEventHourColumn(const QString& column)
{
    static constexpr std::array<const char*, 4> hours = {"MoonRise", "MoonSet", "Minor1", "Minor2"};
    for (const char* name : hours) {
        if (column.compare(QLatin1String(name), Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

QString DisplayValue(const ColumnInfo& column, const QVariant& stored, bool ampm)
{
    if (stored.isNull())
        return {};
    if (IsEventHourColumn(column.Name)) {
        const auto hours = NumberOf(stored);
        return hours && *hours >= 0 ? QString::fromStdString(FormatClock(0, *hours, ampm))
                                    : QString();
    }
    switch (column.Kind) {
    case ColumnKind::Date:
        return Formatted(stored, "mm/dd/yyyy");
    case ColumnKind::Time:
        return Formatted(stored, "hh:mm AMPM");
    case ColumnKind::Double: // 15 significant digits, as the log shows a double
        if (const auto number = NumberOf(stored))
            return QString::number(*number, 'g', 15);
        break;
    default:
        break;
    }
    return stored.toString();
}

DbResult ExportLogTable(const QString& path, bool ampm, LogTable& out, const QString& recordSource)
{
    Database db;
    if (DbResult opened = db.Open(path); !opened)
        return opened;
    const std::vector<ColumnInfo> columns = db.Columns(QStringLiteral("table1"));
    if (columns.empty())
        return DbResult::Failure(QStringLiteral("'%1' holds no log table.").arg(path));
    RowSet rows;
    if (DbResult read = db.Query(recordSource, rows); !read)
        return read;
    out.Columns.clear();
    for (const ColumnInfo& column : columns)
        out.Columns.push_back(column.Name);
    out.Rows.clear();
    for (const auto& row : rows.Rows) {
        std::vector<QString> texts;
        for (std::size_t i = 0; i < columns.size() && i < row.size(); ++i)
            texts.push_back(DisplayValue(columns[i], row[i], ampm));
        out.Rows.push_back(std::move(texts));
    }
    return DbResult::Success();
}
