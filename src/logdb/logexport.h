// SPDX-License-Identifier: GPL-3.0-or-later
// A year file's records as the angler reads them: every column of table1 by date, dates and
// clock times in their display forms, hours of events the day does not have left empty.
#pragma once

#include "db/database.h"

#include <QString>

#include <vector>

struct LogTable {
    std::vector<QString> Columns;
    std::vector<std::vector<QString>> Rows; // an empty text for an empty value
};

// The columns holding a decimal hour of the day, -1 when the day has no such event.
bool IsEventHourColumn(const QString& column);

// A stored value as the log shows it: dates "mm/dd/yyyy", times "hh:mm AMPM", event hours
// as clock texts (empty for -1), other values as stored.
QString DisplayValue(const ColumnInfo& column, const QVariant& stored, bool ampm);

// Reads every record of the year file's table1 in date order, or the records of another
// record source over the log's columns (a query's result in Table3).
DbResult ExportLogTable(
    const QString& path, bool ampm, LogTable& out,
    const QString& recordSource = QStringLiteral("select * from table1 order by JulianDate, DBID"));
