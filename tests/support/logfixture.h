// SPDX-License-Identifier: GPL-3.0-or-later
// Year files with made-up but regular days for the log database tests: every value of a day
// follows from its day of the year, so a test can predict which records a query must give.
#pragma once

#include "db/database.h"

#include <QString>

#include <vector>

namespace logtest {

inline constexpr int Year = 2024; // a leap year: 366 records
inline constexpr int DaysInYear = 366;

struct Day {
    int Number;       // 1..366
    double Serial;    // date serial of the day
    int Major1Minute; // minutes after midnight
    int Weekday;      // 1 = Sunday
    int Month;
    int Rating; // GraphicType
    int Waxing;
};

Day DayOf(int number);

// The record the year fill would write for the day, with the texts it writes.
FieldValues DayRecord(int number);

// A fresh folder holding Default.mdb and a filled "2024.mdb"; returns the year file's path.
QString MakeYearFile(const QString& folderName, int days = DaysInYear);

// MakeYearFile without the fixture's notes, so that the angler's only entries are the given
// fields of the given records (by DBID).
using Entries = std::vector<std::pair<int, FieldValues>>;
QString MakeYearFileWithEntries(const QString& folderName, const Entries& entries = {});

// The DBIDs of the records the record source gives, in its order, read through DataControl.
std::vector<int> RecordIds(const QString& path, const QString& recordSource);

// Number of records of a table, or -1 when it cannot be read.
int CountRows(const QString& path, const QString& table, const QString& connect = {});

// One step of the query builder: S makes Table2, which is copied to Table3.
void RunQueryStep(const QString& path, const QString& statement);

} // namespace logtest
