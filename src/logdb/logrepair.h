// SPDX-License-Identifier: GPL-3.0-or-later
// The repair's salvage of a year file: records read straight from the damaged file's pages,
// and values that cannot be right for their column found and taken out.
#pragma once

#include <QSqlDatabase>
#include <QString>

// Adds to `table` of the rebuilt file every record salvaged from the damaged file's pages
// whose number the table does not hold yet. A record whose long note was cut keeps what of
// it could be read, with a remark saying so. Returns the number added.
int AddSalvagedRecords(const QString& damagedPath, const QSqlDatabase& to, const QString& table);

// The values of table1 outside their column's range (dates, clock times, 0..100 percentages,
// ratings 0..4, hours of the day, ...). With `empty`, each is set empty and a remark naming
// the column is added to its day's Notes. Returns how many there are (or were).
int OutOfRangeValues(const QSqlDatabase& db, bool empty);
