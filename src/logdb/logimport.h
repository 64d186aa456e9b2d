// SPDX-License-Identifier: GPL-3.0-or-later
// Bringing catches in from a CSV file with the columns of the log's export: the date
// (JulianDate), TotalTaken, TakenWith, PeakTime and Notes, and the catches' columns (one line
// per catch, a day's lines one after another); the forecast's columns are ignored.
// Every problem is found, line by line, before anything is written; then the good rows go
// into the year's records by date in one transaction.
#pragma once

#include "db/database.h"
#include "logdb/catches.h"

#include <vector>

struct ImportIssue {
    int Line = 0;
    QString Text;
};

struct ImportRow {
    int Line = 0;
    QString Date;               // stored form, "2024-03-10"
    FieldValues Fields;         // the catch columns the file has, in stored form; empty cells NULL
    bool Occupied = false;      // the day's record already holds an entry or catches
    std::vector<Catch> Catches; // in place of the day's catches, when there are any
};

struct ImportPlan {
    std::vector<ImportRow> Rows;     // rows that can be written, in file order
    std::vector<ImportIssue> Issues; // every problem, by line; occupied records included
    int OccupiedRows() const;
};

enum class ImportChoice { Skip, Overwrite };

// A year of catch entries is far smaller: a larger file, or one without an end such as a
// device, is refused before it is read whole.
inline constexpr qint64 MostImportBytes = 16 * 1024 * 1024;

// The CSV file's bytes, or why they cannot be had: the file cannot be read, or it holds more
// than MostImportBytes.
DbResult ReadImportFile(const QString& path, QByteArray& bytes);

// Reads the CSV text and checks it against the year file of the given year.
DbResult PlanImport(const QString& yearFile, int year, const QByteArray& csv, ImportPlan& plan);
// The same for the log's JSON export, each day's catches nested in it: a day stands for a
// line, counted from 2.
DbResult PlanJsonImport(const QString& yearFile, int year, const QByteArray& json,
                        ImportPlan& plan);

struct ImportCount {
    int Written = 0;     // records changed
    int GainedEntry = 0; // days left alone because they gained an entry after the plan was made
};

// Writes the plan's rows in one transaction, holding the year's lock; with Skip, records that
// hold an entry are left as they are, checked again inside the transaction.
DbResult ApplyImport(const QString& yearFile, const ImportPlan& plan, ImportChoice choice,
                     ImportCount& count);

// "; 3 day(s) that another program gave an entry meanwhile were left as they are", or
// nothing.
QString GainedEntryNote(const ImportCount& count);

// The issues as lines for a report: "Line 7: ...".
QStringList IssueLines(const ImportPlan& plan);
