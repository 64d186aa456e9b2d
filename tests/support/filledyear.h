// SPDX-License-Identifier: GPL-3.0-or-later
// Real year files for the query builder and report tests: the year filled with the engine's
// forecasts at Pittsburgh, PA, and questions asked of the file in plain SQLite, past the
// program's own SQL layer.
#pragma once

#include <QString>
#include <QVariant>

#include <vector>

namespace logtest {

// A fresh folder holding 2024.mdb filled with the year's forecasts; the path of the file.
// Every tenth day has a catch entered (TotalTaken = day of the year % 7).
QString MakeFilledYearFile(const QString& folderName);

// A trigger that refuses the record of 1 July 2024 as a full disk would.
inline const QString DiskFullOnJuly1 =
    "CREATE TRIGGER full BEFORE INSERT ON table1 WHEN NEW.JulianDate = '2024-07-01' "
    "BEGIN SELECT RAISE(ABORT, 'disk is full'); END";

// Runs one SQLite statement on the file without the program's layer.
void PlainExec(const QString& path, const QString& sqliteSql);
// The rows the SQLite statement gives, read without the program's layer.
std::vector<std::vector<QVariant>> PlainRows(const QString& path, const QString& sqliteSql);
// The first column of every row the SQLite statement gives, read without the program's layer.
std::vector<QVariant> PlainColumn(const QString& path, const QString& sqliteSql);
std::vector<int> PlainIds(const QString& path, const QString& sqliteSql);

} // namespace logtest
