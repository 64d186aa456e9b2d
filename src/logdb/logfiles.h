// SPDX-License-Identifier: GPL-3.0-or-later
// The log's files in the program's folder: the template Default.mdb, one "YYYY.mdb" per
// year, and their compaction and repair. Nothing here shows a window; every operation
// returns what happened so that the "Database Functions" window can say it.
#pragma once

#include "db/database.h"

#include <QString>
#include <QStringList>

inline constexpr auto TemplateFileName = "Default.mdb";
inline constexpr auto LogTableName = "table1";

#include <functional>
#include <optional>
#include <vector>

// The file steps that creating, compacting, repairing and restoring a year are made of, so
// that a test can make one fail or stop the program at one.
class FileOps {
public:
    virtual ~FileOps() = default;
    virtual bool Exists(const QString& path) const;
    virtual bool Remove(const QString& path);
    // Fails when the target exists.
    virtual bool Rename(const QString& from, const QString& to);
    // Gives `from` the name `to` in one atomic step, in place of any file of that name.
    virtual bool Replace(const QString& from, const QString& to);
    // Copies into a new file; fails when the target exists.
    virtual bool Copy(const QString& from, const QString& to);
    // Puts the file's contents and its entry in the folder on the disk.
    virtual bool Sync(const QString& path);
    // Puts the entries of the path's folder on the disk: a rename is durable only after it.
    virtual bool SyncFolderOf(const QString& path);

    // Why the last step that failed did ("No space left on device", "Permission denied"), in
    // the system's words; empty when that is not known.
    QString Cause() const { return cause_; }

protected:
    // Keeps the system's words for the last error when `done` is false; gives `done` back.
    bool Noted(bool done);
    bool Failed(const QString& cause);

private:
    QString cause_;
};

// Writes a year's records into the file at the given path.
using YearFill = std::function<DbResult(const QString& path)>;

// "2004.mdb".
QString YearFileName(int year);

// True for names the file list shows: the pattern "????.mdb", each "?" one character, the
// extension in any case (as on the system the files come from).
bool IsYearFileName(const QString& name);

// The year files in the folder, by name.
QStringList ListYearFiles(const QString& folder);

// Creates the template: an empty table1 as the shipped schema lays it out. Fails when the
// file exists.
DbResult CreateTemplateFile(const QString& path);

struct CreateYearResult {
    enum class Status { Created, AlreadyExists, Failed };
    Status Outcome = Status::Failed;
    QString Path;    // the year file's path in every case
    QString Message; // why it failed
};

// Makes "YYYY.mdb" from the folder's Default.mdb (made from the schema when it is missing):
// the copy is made under the name "YYYY.mdb.creating", filled, synced, and only then given
// the year's name, in one rename. A crash at any moment leaves no year file or a whole one;
// a failure leaves none. An existing year file is left exactly as it is.
CreateYearResult CreateYearFile(const QString& folder, int year, const YearFill& fill = {});
CreateYearResult CreateYearFile(const QString& folder, int year, const YearFill& fill,
                                FileOps& ops);

// Compacts the file: "New" + name is written beside it, synced and checked; the file is
// copied to "<first four characters>.BAK" in place of the previous one; then the new copy
// takes the file's name in one rename. The year file keeps its name throughout, so a crash
// at any moment leaves it whole under that name. The compacted file keeps the file's
// permissions; when the year file is a link, the compacted copy is made and renamed beside
// the file it leads to, so the link stays.
DbResult CompactDB(const QString& path, const QString& connect = {});
DbResult CompactDB(const QString& path, const QString& connect, FileOps& ops);

// Deletes a year file with the engine's companions of it (an unfinished journal).
bool DeleteYearFile(const QString& path);

// Removes what an interrupted create, compaction or repair left in the folder, where it
// holds nothing of the angler's that is not in the year file: "YYYY.mdb.creating" files
// (forecasts only), and "NewYYYY.mdb" or "RepYYYY.mdb" beside a sound "YYYY.mdb"; never
// while another program holds the year's lock. Returns the names removed.
QStringList CleanLeftovers(const QString& folder);

// A year whose file is missing while a copy of it is kept: the compacted "NewYYYY.mdb" of an
// interrupted compaction when it is sound, else "YYYY.BAK".
struct RestorableYear {
    int Year = 0;
    QString Copy; // full path
};
std::vector<RestorableYear> RestorableYears(const QString& folder);

// A year deleted on purpose: no year file, and its newest copy in backups/.
std::optional<RestorableYear> DeletedYear(const QString& folder, int year);

// Makes the kept copy the year's file again (copied, synced, renamed into place); the .BAK
// and backups stay, a "NewYYYY.mdb" is used up.
DbResult RestoreYearFile(const QString& folder, const RestorableYear& kept);
DbResult RestoreYearFile(const QString& folder, const RestorableYear& kept, FileOps& ops);

// What a repair did, in words for the angler.
struct RepairReport {
    DbResult Result;
    bool Damaged = false; // the integrity check failed and the file was rebuilt
    int Kept = 0;         // records of table1 in the repaired file
    int Unreadable = 0;   // numbers up to the highest given whose record could not be read
    int Marked = 0;       // values outside their column's range, emptied
    QString KeptAs;       // the damaged original's name, "2024.BAD"
    // "366 records kept, 0 could not be read; the damaged file is kept as 2024.BAD." or that
    // the file is sound.
    QString Summary() const;
};

// Checks the file and, when it is damaged, rebuilds it with every record that can still be
// read; the damaged file is kept as "<first four characters>.BAD". Says what was kept.
RepairReport RepairYearFile(const QString& path, const QString& connect = {});
RepairReport RepairYearFile(const QString& path, const QString& connect, FileOps& ops);

// The file's integrity check: success when the engine finds nothing wrong.
DbResult CheckIntegrity(Database& db);
