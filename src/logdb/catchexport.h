// SPDX-License-Identifier: GPL-3.0-or-later
// The catches in the log's export and import. A catch is written as cells after its day's
// columns, in stored units and forms (time "HH:MM:SS", length mm, weight g, temperatures °C,
// Released 1 or 0, photos joined by "|"), so that exporting, importing into a fresh year and
// exporting again gives the same bytes. CSV has one line per catch with its day's columns
// (a day without catches one line, its catch cells empty); JSON nests the catches in their
// day under "Catches".
#pragma once

#include "db/database.h"
#include "logdb/catches.h"
#include "logdb/csvread.h"
#include "logdb/logexport.h"

#include <QByteArray>

#include <optional>
#include <vector>

inline constexpr auto CatchesKey = "Catches";
inline constexpr char PhotoSeparator = '|';

// "CatchTime", "Species", "FishCount", ... "CatchNote", "Photos".
const std::vector<QString>& CatchExportColumns();
bool IsCatchExportColumn(const QString& name);

// The catch's cells in the order of CatchExportColumns.
std::vector<QString> CatchCells(const Catch& c);

// The catch the cells of the named columns hold for the day; nothing when every catch cell is
// empty. A cell that cannot be read gives nothing and `why` says which and why.
std::optional<Catch> CatchOfCells(const QString& date, const std::vector<QString>& columns,
                                  const std::vector<QString>& cells, QString& why);

struct CatchLogTable {
    LogTable Days;                                          // as ExportLogTable gives them
    std::vector<std::vector<std::vector<QString>>> Catches; // per day row: its catches' cells
};

// Every record of the year file with its catches, or the records of another record source
// over the log's columns (a query's result in Table3).
DbResult ExportCatchTable(
    const QString& path, bool ampm, CatchLogTable& out,
    const QString& recordSource = QStringLiteral("select * from table1 order by JulianDate, DBID"));

// The table as CSV lines (one per catch) and as JSON (catches nested in their day).
std::string CatchTableAsCsv(const CatchLogTable& table);
std::string CatchTableAsJson(const CatchLogTable& table);

// The records of a JSON export as the CSV reader gives them: a header line of the day's keys
// and the catch columns, then one record per catch (or per day without catches). Fails on
// text that is not an array of day objects.
DbResult RecordsOfJson(const QByteArray& json, std::vector<CsvRecord>& records);
