// SPDX-License-Identifier: GPL-3.0-or-later
// Each catch of a day, beside the day's record in table1: species, count, size, released or
// kept, bait, method, spot, the weather at the time, a note and photos. A day's TotalTaken
// follows the sum of its catches' counts while it has any.
//
// Each function takes the year file's Jet connect string (";pwd=..."), as Database::Open
// does, for a file protected with a password.
//
// Every change is one transaction on the year file, holding the year's lock. A file made
// before catches were kept opens as it is and gains their tables with the first change:
// the file is backed up (the log's backup rules), then the tables are made, the layout's
// version recorded and the change written, all in one transaction.
#pragma once

#include "db/database.h"

#include <QDateTime>
#include <QString>
#include <QStringList>

#include <map>
#include <optional>
#include <set>
#include <vector>

// The layout of the catches' tables that this program writes (PRAGMA user_version).
inline constexpr int CatchSchemaVersion = 1;
inline constexpr auto CatchTableName = "Catches";
inline constexpr auto CatchPhotoTableName = "CatchPhotos";
inline constexpr int MostFishPerCatch = 1000;

struct Catch {
    qint64 Id = 0; // CatchID; 0 until stored
    QString Date;  // the day's JulianDate, "2024-03-10"
    QString Time;  // "HH:MM:SS"; empty when not known
    QString Species;
    int Count = 1; // fish of this species and size taken together, 1 to MostFishPerCatch
    std::optional<int> LengthMm;
    std::optional<int> WeightG;
    bool Released = false;
    QString Bait; // bait or lure
    QString Method;
    QString Spot;
    std::optional<double> Latitude;  // degrees, north positive
    std::optional<double> Longitude; // degrees, east positive
    std::optional<double> WaterTemp; // °C
    std::optional<double> AirTemp;   // °C
    QString Wind;
    QString Sky;
    QString Note;
    QStringList Photos; // relative to the year file's folder, in the order shown

    bool operator==(const Catch&) const = default;
};

// Makes the catches' tables in the open file and records their layout's version.
DbResult CreateCatchTables(Database& db);

// The layout version the file records: 0 for a file without the catches' tables.
DbResult CatchSchemaOf(const QString& yearFile, int& version, const QString& connect = {});

// The day's catches by time (untimed first), then in the order they were added. A file
// without the catches' tables has none.
DbResult ReadDayCatches(const QString& yearFile, const QString& date, std::vector<Catch>& out,
                        const QString& connect = {});
// Every catch of the year file, by date, then as ReadDayCatches orders them.
DbResult ReadYearCatches(const QString& yearFile, std::vector<Catch>& out,
                         const QString& connect = {});

// What a day's catches come to, as the grid of a selection shows it beside the day's record.
struct DayCatchSummary {
    QStringList Species; // each once (as first written, ignoring case), in the catches' order
    int Fish = 0;        // the sum of the counts
    int Released = 0;    // the fish of released catches
    std::optional<int> LongestMm;
    std::optional<int> HeaviestG;

    bool operator==(const DayCatchSummary&) const = default;
};

// The summaries of the given days that have catches, read in one query; a file without the
// catches' tables gives none.
DbResult ReadCatchSummaries(const QString& yearFile, const std::set<QString>& dates,
                            std::map<QString, DayCatchSummary>& out, const QString& connect = {});

// What is wrong with the catch before it is written, in words for the angler; empty when it
// can be kept: a date the year file has, a count from 1 to MostFishPerCatch, measures and
// temperatures in range, a latitude without a longitude.
QString CatchProblem(const Catch& c);

// Writes a new catch for its day and gives it its Id. `now` names the backup taken before a
// file gains the catches' tables.
DbResult AddCatch(const QString& yearFile, Catch& c, const QDateTime& now,
                  const QString& connect = {});
// Replaces the stored catch with the same Id (its day may change).
DbResult UpdateCatch(const QString& yearFile, const Catch& c, const QDateTime& now,
                     const QString& connect = {});
// Removes the catch and its photos' entries, then the photo files that no catch of the
// folder's year files still shows (a file that cannot be read keeps them all). When the day's
// last catch goes, its TotalTaken is emptied: the total followed the catches.
DbResult RemoveCatch(const QString& yearFile, qint64 id, const QDateTime& now,
                     const QString& connect = {});
// Adds the catches, each for its own day, in one transaction, as an import does.
DbResult AddCatches(const QString& yearFile, std::vector<Catch>& catches, const QDateTime& now,
                    const QString& connect = {});

// Inside the caller's transaction on the open file, which holds the year's lock and has been
// backed up: the day's catches become the given ones (each given its Id), the catches' tables
// made first when the file lacks them; the day's total follows.
DbResult ReplaceDayCatches(Database& db, const QString& date, std::vector<Catch>& catches);

// The species named in the catches of every year file of the folder, each once (as first
// written, ignoring case), in alphabetical order: the completion list of the catch editor.
DbResult SpeciesList(const QString& folder, QStringList& species);
