// The log's files in the program's folder: the template Default.mdb, one "YYYY.mdb" per
// year, and their compaction and repair. Nothing here shows a window; every operation
// returns what happened so that the "Database Functions" window can say it.
#pragma once

#include "logdb/database.h"

#include <QString>
#include <QStringList>

inline constexpr auto TemplateFileName = "Default.mdb";
inline constexpr auto LogTableName = "table1";

// The file operations compaction and repair are made of, so that a test can make one fail.
class FileOps {
public:
    virtual ~FileOps() = default;
    virtual bool Exists(const QString& path) const;
    virtual bool Remove(const QString& path);
    // Fails when the target exists.
    virtual bool Rename(const QString& from, const QString& to);
};

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

// Copies the folder's Default.mdb (made from the schema when it is missing) to "YYYY.mdb".
// An existing year file is left exactly as it is.
CreateYearResult CreateYearFile(const QString& folder, int year);

// Compacts the file: "New" + name is written beside it and checked, the previous
// "<first four characters>.BAK" is deleted, the file becomes that .BAK and the new copy takes
// its name. On any failure the file stays readable under its own name.
DbResult CompactDB(const QString& path, const QString& connect = {});
DbResult CompactDB(const QString& path, const QString& connect, FileOps& ops);

// Checks the file and, when it is damaged, rebuilds it with every record that can still be
// read; the damaged file is kept as "<first four characters>.BAD".
DbResult RepairDB(const QString& path, const QString& connect = {});
DbResult RepairDB(const QString& path, const QString& connect, FileOps& ops);

// The file's integrity check: success when the engine finds nothing wrong.
DbResult CheckIntegrity(Database& db);
