// SPDX-License-Identifier: GPL-3.0-or-later
#include "logdb/logfiles.h"

#include "db/jetsql.h"
#include "logdb/backups.h"
#include "logdb/logrepair.h"
#include "logdb/yearlock.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

#include <algorithm>
#include <limits>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace {

// How far past the last readable rowid a repair looks for more records when nothing readable
// tells where the table ends.
constexpr qint64 BlindProbeSpan = 65536;

// The size of the blocks a copy reads and writes, the mode it creates the copy with (before it
// takes the source's) and the permission bits of a file's mode.
constexpr std::size_t CopyBlock = 1 << 20;
constexpr mode_t CopyMode = 0600;
constexpr mode_t PermissionBits = 07777;

QString Sibling(const QString& path, const QString& name)
{
    return QFileInfo(path).absoluteDir().filePath(name);
}

// "2004.mdb" -> "2004" + suffix, the program's names for a file's companions.
QString Companion(const QString& path, const QString& suffix)
{
    return Sibling(path, QFileInfo(path).fileName().left(4) + suffix);
}

DbResult RunScript(Database& db, const QString& script)
{
    for (const std::string& statement : SplitSqlScript(script.toStdString())) {
        QSqlQuery q(db.Connection());
        if (!q.exec(QString::fromStdString(statement)))
            return DbResult::Failure(ErrorText(q.lastError()));
    }
    return DbResult::Success();
}

// An empty SQLite file at path, made by the engine when first written.
DbResult CreateEmptyFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::NewOnly | QIODevice::WriteOnly))
        return DbResult::Failure(
            QStringLiteral("Cannot create '%1': %2").arg(path, file.errorString()));
    return DbResult::Success();
}

// "Cannot copy 'a' to 'b': No space left on device." with the cause when it is known.
DbResult StepFailed(const QString& what, const FileOps& ops)
{
    const QString cause = ops.Cause();
    return DbResult::Failure(cause.isEmpty() ? what + QLatin1Char('.')
                                             : QStringLiteral("%1: %2.").arg(what, cause));
}

// Puts the complete, synced file `fresh` in the place of `path`, after the file there has been
// copied to `keep`. `path` holds the previous file under its own name until the last step,
// one atomic rename, gives it the new one.
DbResult SwapIn(const QString& path, const QString& fresh, const QString& keep, FileOps& ops)
{
    const QString keeping = keep + QStringLiteral(".new");
    if (ops.Exists(keeping) && !ops.Remove(keeping))
        return StepFailed(QStringLiteral("Cannot delete '%1'").arg(keeping), ops);
    if (!ops.Copy(path, keeping) || !ops.Sync(keeping)) {
        DbResult failed =
            StepFailed(QStringLiteral("Cannot copy '%1' to '%2'").arg(path, keeping), ops);
        ops.Remove(keeping);
        return failed;
    }
    if (!ops.Replace(keeping, keep)) {
        DbResult failed =
            StepFailed(QStringLiteral("Cannot rename '%1' to '%2'").arg(keeping, keep), ops);
        ops.Remove(keeping);
        return failed;
    }
    if (!ops.Replace(fresh, path))
        return StepFailed(QStringLiteral("Cannot rename '%1' to '%2'").arg(fresh, path), ops);
    return DbResult::Success();
}

// The engine's companions of a database file: the rollback journal and the write-ahead log.
QStringList EngineCompanions(const QString& path)
{
    return {path + QStringLiteral("-journal"), path + QStringLiteral("-wal"),
            path + QStringLiteral("-shm")};
}

// Gives a complete file its final name: synced, then renamed in one step.
DbResult Publish(const QString& building, const QString& path, FileOps& ops)
{
    if (!ops.Sync(building))
        return StepFailed(QStringLiteral("Cannot write '%1' to the disk").arg(building), ops);
    if (!ops.Rename(building, path))
        return StepFailed(QStringLiteral("Cannot rename '%1' to '%2'").arg(building, path), ops);
    return DbResult::Success();
}

void RemoveWithCompanions(const QString& path, FileOps& ops)
{
    ops.Remove(path);
    for (const QString& companion : EngineCompanions(path))
        ops.Remove(companion);
}

// The engine's file header: its first 16 bytes, the page size at 16 (two bytes, 1 meaning
// 65536), the change counter at 24, the page count at 28, valid while the copy of the change
// counter at 92 equals it (sqlite.org/fileformat2.html).
constexpr int EngineHeaderSize = 100;
const QByteArray EngineMagic("SQLite format 3\0", 16);
constexpr qint64 SmallestPage = 512;
constexpr qint64 PageSizeCode64K = 1;
constexpr qint64 LargestPage = 65536;

qint64 BigEndianAt(const QByteArray& bytes, int at, int count)
{
    qint64 value = 0;
    for (int i = 0; i < count; ++i)
        value = (value << 8) | quint8(bytes[at + i]);
    return value;
}

// Whether the file's bytes can be a whole log: the engine's header and every page it counts.
DbResult CheckLogBytes(const QString& path)
{
    const QString name = QFileInfo(path).fileName();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return DbResult::Failure(
            QStringLiteral("Cannot read %1: %2.").arg(name, file.errorString()));
    const QByteArray head = file.read(EngineHeaderSize);
    if (file.size() == 0)
        return DbResult::Failure(QStringLiteral("%1 is empty.").arg(name));
    if (file.size() < SmallestPage || !head.startsWith(EngineMagic))
        return DbResult::Failure(QStringLiteral("%1 is not a Quillmere log.").arg(name));
    const qint64 code = BigEndianAt(head, 16, 2);
    const qint64 pageSize = code == PageSizeCode64K ? LargestPage : code;
    const bool countValid = head.mid(24, 4) == head.mid(92, 4);
    if (pageSize < SmallestPage || file.size() % pageSize != 0 ||
        (countValid && file.size() < BigEndianAt(head, 28, 4) * pageSize))
        return DbResult::Failure(QStringLiteral("%1 is cut short.").arg(name));
    return DbResult::Success();
}

// A whole, sound log: its bytes, its table1, and the engine's integrity check.
DbResult CheckFile(const QString& path, const QString& connect)
{
    if (DbResult bytes = CheckLogBytes(path); !bytes)
        return bytes;
    Database db;
    if (DbResult opened = db.Open(path, connect); !opened)
        return opened;
    if (!db.Tables().contains(LogTableName, Qt::CaseInsensitive))
        return DbResult::Failure(
            QStringLiteral("%1 is not a Quillmere log.").arg(QFileInfo(path).fileName()));
    return CheckIntegrity(db);
}

DbResult Fail(FileOps& ops, const QString& leftover, const DbResult& failure)
{
    RemoveWithCompanions(leftover, ops);
    return failure;
}

// The file's permissions for its owner, group and others. The "User" ones say what this
// process may do (everything, for the superuser), and setting them would set the owner's.
QFileDevice::Permissions ModeOf(const QString& path)
{
    return QFileInfo(path).permissions() &
           ~(QFileDevice::ReadUser | QFileDevice::WriteUser | QFileDevice::ExeUser);
}

// The file a link leads to, or the path itself when it is no link.
QString ResolvedFile(const QString& path)
{
    const QFileInfo info(path);
    const QString target = info.isSymLink() ? info.canonicalFilePath() : QString();
    return target.isEmpty() ? path : target;
}

// Puts `fresh`, made beside the file that `path` is or leads to, in that file's place with the
// file's permissions, after the file there has been kept as `keep`: a year file behind a link
// stays a link, and one the angler made read-only stays read-only.
DbResult ReplaceInPlace(const QString& path, const QString& fresh, const QString& keep,
                        FileOps& ops)
{
    const QString file = ResolvedFile(path);
    if (!QFile::setPermissions(fresh, ModeOf(file)))
        return DbResult::Failure(
            QStringLiteral("Cannot give '%1' the permissions of '%2'.").arg(fresh, file));
    return SwapIn(file, fresh, keep, ops);
}

// The name a new copy of the year file is built under until it replaces it: `prefix` and the
// year file's name, beside the file the path leads to, so that one rename puts it in place.
QString NewCopyName(const QString& path, const QString& prefix)
{
    return Sibling(ResolvedFile(path), prefix + QFileInfo(path).fileName());
}

// The name a year file is made under until it is whole.
QString CreatingName(const QString& path) { return path + QStringLiteral(".creating"); }

bool SyncDescriptor(int fd) { return fd >= 0 && ::fsync(fd) == 0; }

// Copies the whole of `in` to `out`, with the permissions of `in`; false with errno set by the
// step that failed.
bool CopyDescriptor(int in, int out)
{
    struct stat source {};
    if (::fstat(in, &source) != 0 || ::fchmod(out, source.st_mode & PermissionBits) != 0)
        return false;
    std::vector<char> block(CopyBlock);
    for (;;) {
        const ssize_t got = ::read(in, block.data(), block.size());
        if (got == 0)
            return true;
        if (got < 0 && errno != EINTR)
            return false;
        for (ssize_t done = 0; got > 0 && done < got;) {
            const ssize_t put = ::write(out, block.data() + done, std::size_t(got - done));
            if (put < 0 && errno != EINTR)
                return false;
            done += std::max<ssize_t>(put, 0);
        }
    }
}

bool SyncFolderEntries(const QString& path)
{
    const QByteArray folder = QFile::encodeName(QFileInfo(path).absolutePath());
    const int fd = ::open(folder.constData(), O_RDONLY | O_DIRECTORY);
    const bool synced = SyncDescriptor(fd);
    if (fd >= 0)
        ::close(fd);
    return synced;
}

} // namespace

bool FileOps::Noted(bool done)
{
    if (done)
        cause_.clear();
    else
        cause_ = QString::fromLocal8Bit(std::strerror(errno));
    return done;
}

bool FileOps::Failed(const QString& cause)
{
    cause_ = cause;
    return false;
}

bool FileOps::Exists(const QString& path) const { return QFileInfo::exists(path); }
bool FileOps::Remove(const QString& path)
{
    return Noted(::unlink(QFile::encodeName(path).constData()) == 0);
}

bool FileOps::Rename(const QString& from, const QString& to)
{
    return Exists(to) ? Failed(QStringLiteral("a file of that name exists")) : Replace(from, to);
}

bool FileOps::Replace(const QString& from, const QString& to)
{
    return Noted(::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) ==
                 0) &&
           Noted(SyncFolderOf(to));
}

bool FileOps::SyncFolderOf(const QString& path) { return SyncFolderEntries(path); }

bool FileOps::Copy(const QString& from, const QString& to)
{
    const int in = ::open(QFile::encodeName(from).constData(), O_RDONLY | O_CLOEXEC);
    if (in < 0)
        return Noted(false);
    const int out = ::open(QFile::encodeName(to).constData(),
                           O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, CopyMode);
    const bool copied = Noted(out >= 0 && CopyDescriptor(in, out));
    ::close(in);
    if (out >= 0) {
        ::close(out);
        if (!copied)
            ::unlink(QFile::encodeName(to).constData());
    }
    return copied;
}

bool FileOps::Sync(const QString& path)
{
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY);
    const bool synced = Noted(SyncDescriptor(fd));
    if (fd >= 0)
        ::close(fd);
    return synced && Noted(SyncFolderOf(path));
}

QString YearFileName(int year) { return QString::number(year) + QStringLiteral(".mdb"); }

bool IsYearFileName(const QString& name)
{
    return name.size() == 8 && name.endsWith(QStringLiteral(".mdb"), Qt::CaseInsensitive);
}

QStringList ListYearFiles(const QString& folder)
{
    QStringList names = QDir(folder).entryList(QDir::Files, QDir::Name);
    names.removeIf([](const QString& name) { return !IsYearFileName(name); });
    return names;
}

DbResult CreateTemplateFile(const QString& path)
{
    QFile schema(QStringLiteral(":/logdb/default_schema.sql"));
    if (!schema.open(QIODevice::ReadOnly))
        return DbResult::Failure(QStringLiteral("The log's schema is missing from the program."));
    const QString building = path + QStringLiteral(".new");
    QFile::remove(building);
    if (DbResult created = CreateEmptyFile(building); !created)
        return created;
    DbResult result;
    {
        Database db;
        result = db.Open(building);
        result = result ? RunScript(db, QString::fromUtf8(schema.readAll())) : result;
    }
    if (result && !QFile::rename(building, path))
        result =
            DbResult::Failure(QStringLiteral("Cannot create '%1': the file exists.").arg(path));
    QFile::remove(building);
    return result;
}

CreateYearResult CreateYearFile(const QString& folder, int year, const YearFill& fill)
{
    FileOps ops;
    return CreateYearFile(folder, year, fill, ops);
}

CreateYearResult CreateYearFile(const QString& folder, int year, const YearFill& fill, FileOps& ops)
{
    CreateYearResult out;
    out.Path = QDir(folder).filePath(YearFileName(year));
    const YearFileLock lock(out.Path);
    if (!lock.Held()) {
        out.Message = lock.Message();
        return out;
    }
    if (ops.Exists(out.Path)) {
        out.Outcome = CreateYearResult::Status::AlreadyExists;
        return out;
    }
    for (const RestorableYear& kept : RestorableYears(folder)) {
        if (kept.Year == year) { // a fresh file would let that copy be cleaned or replaced
            out.Message = QStringLiteral("%1 is missing, but a copy of it is kept as %2; restore "
                                         "it, or move the copy away to start a new file.")
                              .arg(YearFileName(year), QFileInfo(kept.Copy).fileName());
            return out;
        }
    }
    const QString templatePath = QDir(folder).filePath(TemplateFileName);
    if (!ops.Exists(templatePath)) {
        if (DbResult made = CreateTemplateFile(templatePath); !made) {
            out.Message = made.Message;
            return out;
        }
    }
    const QString building = CreatingName(out.Path);
    RemoveWithCompanions(building, ops);
    DbResult made =
        ops.Copy(templatePath, building)
            ? DbResult::Success()
            : StepFailed(QStringLiteral("Cannot copy '%1' to '%2'").arg(templatePath, building),
                         ops);
    made = made && fill ? fill(building) : made;
    made = made ? Publish(building, out.Path, ops) : made;
    if (!made) {
        RemoveWithCompanions(building, ops);
        out.Message = made.Message;
        return out;
    }
    out.Outcome = CreateYearResult::Status::Created;
    return out;
}

DbResult CheckIntegrity(Database& db)
{
    QSqlQuery q(db.Connection());
    if (!q.exec(QStringLiteral("PRAGMA integrity_check")))
        return DbResult::Failure(ErrorText(q.lastError()));
    if (!q.next())
        return DbResult::Failure(ErrorText(q.lastError()));
    const QString verdict = q.value(0).toString();
    return verdict == QStringLiteral("ok") ? DbResult::Success() : DbResult::Failure(verdict);
}

DbResult CompactDB(const QString& path, const QString& connect)
{
    FileOps ops;
    return CompactDB(path, connect, ops);
}

DbResult CompactDB(const QString& path, const QString& connect, FileOps& ops)
{
    const YearFileLock lock(path);
    if (!lock.Held())
        return DbResult::Failure(lock.Message());
    const QString compacted = NewCopyName(path, QStringLiteral("New"));
    // A file that is not a whole log must not become the kept copy's successor.
    if (DbResult whole = CheckFile(path, connect); !whole)
        return DbResult::Failure(whole.Message +
                                 QStringLiteral(" It is not compacted; repair it first. %1 is "
                                                "kept as it is.")
                                     .arg(QFileInfo(Companion(path, ".BAK")).fileName()));
    {
        Database db;
        if (DbResult opened = db.Open(path, connect); !opened)
            return opened;
        // The year file opened, so a copy left beside it by an interrupted compaction holds
        // nothing the file does not.
        if (ops.Exists(compacted) && !ops.Remove(compacted))
            return StepFailed(QStringLiteral("Cannot delete '%1'").arg(compacted), ops);
        // Made empty first, so that a folder that takes no new file is said in its words.
        if (DbResult created = CreateEmptyFile(compacted); !created)
            return created;
        QSqlQuery q(db.Connection());
        q.prepare(QStringLiteral("VACUUM INTO ?"));
        q.addBindValue(compacted);
        if (!q.exec())
            return Fail(ops, compacted, DbResult::Failure(ErrorText(q.lastError())));
    }
    if (!ops.Sync(compacted))
        return Fail(
            ops, compacted,
            StepFailed(QStringLiteral("Cannot write '%1' to the disk").arg(compacted), ops));
    if (DbResult checked = CheckFile(compacted, connect); !checked)
        return Fail(ops, compacted, checked);
    if (DbResult replaced = ReplaceInPlace(path, compacted, Companion(path, ".BAK"), ops);
        !replaced)
        return Fail(ops, compacted, replaced);
    return DbResult::Success();
}

bool DeleteYearFile(const QString& path)
{
    const YearFileLock lock(path);
    if (!lock.Held())
        return false;
    FileOps ops;
    const bool removed = ops.Remove(path);
    for (const QString& companion : EngineCompanions(path))
        ops.Remove(companion);
    return removed;
}

namespace {

// The year file a leftover belongs to: "New2024.mdb" and "Rep2024.mdb" to "2024.mdb".
QString YearFileOfLeftover(const QString& name)
{
    for (const char* prefix : {"New", "Rep"}) {
        QString rest = name.mid(3);
        if (name.startsWith(QLatin1String(prefix)) && IsYearFileName(rest))
            return rest;
    }
    return {};
}

bool IsSound(const QString& path) { return QFileInfo::exists(path) && bool(CheckFile(path, {})); }

} // namespace

QStringList CleanLeftovers(const QString& folder)
{
    FileOps ops;
    const QDir dir(folder);
    QStringList removed;
    for (const QString& name : dir.entryList(QDir::Files, QDir::Name)) {
        const bool unfinishedCreate = name.endsWith(QStringLiteral(".creating"));
        const QString yearFile = unfinishedCreate ? name.chopped(QStringLiteral(".creating").size())
                                                  : YearFileOfLeftover(name);
        if (yearFile.isEmpty())
            continue;
        // A leftover is only one while no program holds its year: a compaction, repair or
        // create at work in another program is writing it.
        const YearFileLock idle(dir.filePath(yearFile), std::chrono::milliseconds(0));
        if (!idle.Held() || (!unfinishedCreate && !IsSound(dir.filePath(yearFile))))
            continue;
        RemoveWithCompanions(dir.filePath(name), ops);
        removed << name;
    }
    return removed;
}

std::vector<RestorableYear> RestorableYears(const QString& folder)
{
    const QDir dir(folder);
    std::vector<RestorableYear> years;
    for (const QString& name : dir.entryList(QDir::Files, QDir::Name)) {
        const bool backup =
            name.size() == 8 && name.endsWith(QStringLiteral(".BAK"), Qt::CaseInsensitive);
        const QString yearFile =
            backup ? name.left(4) + QStringLiteral(".mdb") : YearFileOfLeftover(name);
        bool isYear = false;
        const int year = yearFile.left(4).toInt(&isYear);
        if (yearFile.isEmpty() || !isYear || QFileInfo::exists(dir.filePath(yearFile)))
            continue;
        const QString copy = dir.filePath(name);
        auto known = std::find_if(years.begin(), years.end(),
                                  [year](const RestorableYear& r) { return r.Year == year; });
        if (backup && known == years.end())
            years.push_back({year, copy});
        else if (!backup && IsSound(copy)) // the newer copy wins over the .BAK
            known == years.end() ? years.push_back({year, copy}) : void(known->Copy = copy);
    }
    return years;
}

std::optional<RestorableYear> DeletedYear(const QString& folder, int year)
{
    const QString yearFile = QDir(folder).filePath(YearFileName(year));
    const QStringList copies = ListBackups(yearFile);
    if (QFileInfo::exists(yearFile) || copies.isEmpty())
        return std::nullopt;
    return RestorableYear{year, copies.front()};
}

DbResult RestoreYearFile(const QString& folder, const RestorableYear& kept)
{
    FileOps ops;
    return RestoreYearFile(folder, kept, ops);
}

DbResult RestoreYearFile(const QString& folder, const RestorableYear& kept, FileOps& ops)
{
    const QString path = QDir(folder).filePath(YearFileName(kept.Year));
    const YearFileLock lock(path);
    if (!lock.Held())
        return DbResult::Failure(lock.Message());
    if (ops.Exists(path))
        return DbResult::Failure(QStringLiteral("'%1' exists already.").arg(path));
    if (DbResult checked = CheckFile(kept.Copy, {}); !checked)
        return DbResult::Failure(
            QStringLiteral("'%1' cannot be read: %2").arg(kept.Copy, checked.Message));
    const QString building = CreatingName(path);
    RemoveWithCompanions(building, ops);
    if (!ops.Copy(kept.Copy, building))
        return Fail(
            ops, building,
            StepFailed(QStringLiteral("Cannot copy '%1' to '%2'").arg(kept.Copy, building), ops));
    if (DbResult published = Publish(building, path, ops); !published)
        return Fail(ops, building, published);
    if (!YearFileOfLeftover(QFileInfo(kept.Copy).fileName()).isEmpty())
        ops.Remove(kept.Copy); // a compaction's copy is used up; .BAK and backups stay
    return DbResult::Success();
}

namespace {

// The rebuild reads the damaged file on one connection and writes the new file on another:
// an engine error met while reading must not touch the write transaction.
struct RebuildLinks {
    QSqlDatabase From;
    QSqlDatabase To;
};

int CountRecords(const QSqlDatabase& db, const QString& table)
{
    QSqlQuery q(db);
    return q.exec(QStringLiteral("SELECT count(*) FROM %1").arg(QuotedName(table))) && q.next()
               ? q.value(0).toInt()
               : 0;
}

// Largest rowid the table may hold, from whatever can still be read; at least `floor`.
qint64 RowIdCeiling(const QSqlDatabase& from, const QString& table, qint64 floor)
{
    qint64 ceiling = floor + BlindProbeSpan;
    QSqlQuery q(from);
    if (q.exec(QStringLiteral("SELECT max(rowid) FROM %1").arg(QuotedName(table))) && q.next())
        ceiling = std::max(ceiling, q.value(0).toLongLong());
    q.prepare(QStringLiteral("SELECT seq FROM sqlite_sequence WHERE name = ?"));
    q.addBindValue(table);
    if (q.exec() && q.next())
        ceiling = std::max(ceiling, q.value(0).toLongLong());
    return ceiling;
}

// The first rowid after `after` that can be read by looking it up, stepping over the rows
// of a damaged page; nothing when there is none up to the ceiling.
std::optional<qint64> NextReadableRowId(const QSqlDatabase& from, const QString& table,
                                        qint64 after, qint64 ceiling)
{
    QSqlQuery q(from);
    q.prepare(QStringLiteral("SELECT 1 FROM %1 WHERE rowid = ?").arg(QuotedName(table)));
    for (qint64 id = after + 1; id <= ceiling; ++id) {
        q.addBindValue(id);
        if (q.exec() && q.next())
            return id;
    }
    return std::nullopt;
}

// Rowids of every record of the table that can still be reached: a scan in rowid order,
// which stops at a damaged page, resumed after each damaged stretch.
std::vector<qint64> ReadableRowIds(const QSqlDatabase& from, const QString& table)
{
    std::vector<qint64> ids;
    QSqlQuery scan(from);
    scan.setForwardOnly(true);
    scan.prepare(QStringLiteral("SELECT rowid FROM %1 WHERE rowid > ? ORDER BY rowid")
                     .arg(QuotedName(table)));
    for (qint64 last = std::numeric_limits<qint64>::min();;) {
        scan.addBindValue(last);
        if (scan.exec()) {
            while (scan.next()) {
                last = scan.value(0).toLongLong();
                ids.push_back(last);
            }
            if (!scan.lastError().isValid())
                return ids;
        }
        const qint64 after = ids.empty() ? 0 : last;
        const auto next = NextReadableRowId(from, table, after, RowIdCeiling(from, table, after));
        if (!next)
            return ids;
        last = *next;
        ids.push_back(last);
    }
}

DbResult CopyReadableRows(const RebuildLinks& links, const QString& table)
{
    QSqlQuery read(links.From);
    read.prepare(QStringLiteral("SELECT * FROM %1 WHERE rowid = ?").arg(QuotedName(table)));
    QSqlQuery write(links.To);
    for (const qint64 id : ReadableRowIds(links.From, table)) {
        read.addBindValue(id);
        if (!read.exec() || !read.next())
            continue; // read from the pages afterwards, when they still hold it
        const int count = read.record().count();
        if (write.lastQuery().isEmpty())
            // A row number met twice (garbage that reads as a record) keeps the first.
            write.prepare(QStringLiteral("INSERT OR IGNORE INTO %1 VALUES (%2)")
                              .arg(QuotedName(table), Placeholders(count)));
        for (int i = 0; i < count; ++i)
            write.addBindValue(read.value(i));
        if (!write.exec())
            return DbResult::Failure(ErrorText(write.lastError()));
    }
    return DbResult::Success();
}

struct SchemaEntry {
    QString Type, Name, Sql;
};

std::vector<SchemaEntry> ReadSchema(const QSqlDatabase& from, DbResult& result)
{
    std::vector<SchemaEntry> entries;
    QSqlQuery q(from);
    if (!q.exec(QStringLiteral(
            "SELECT type, name, sql FROM sqlite_master WHERE sql IS NOT NULL ORDER BY rowid"))) {
        result = DbResult::Failure(ErrorText(q.lastError()));
        return entries;
    }
    while (q.next())
        entries.push_back({q.value(0).toString(), q.value(1).toString(), q.value(2).toString()});
    if (q.lastError().isValid())
        result = DbResult::Failure(ErrorText(q.lastError()));
    return entries;
}

// Auto-numbering goes on after the highest number the damaged file had given.
void CopySequences(const RebuildLinks& links)
{
    QSqlQuery read(links.From);
    QSqlQuery write(links.To);
    write.prepare(QStringLiteral("UPDATE sqlite_sequence SET seq = max(seq, ?) WHERE name = ?"));
    if (!read.exec(QStringLiteral("SELECT name, seq FROM sqlite_sequence")))
        return;
    while (read.next()) {
        write.addBindValue(read.value(1));
        write.addBindValue(read.value(0));
        write.exec();
    }
}

// Tables first, with their readable rows; then the indexes, views and triggers over them.
DbResult RebuildInto(const RebuildLinks& links, const std::vector<SchemaEntry>& schema)
{
    QSqlQuery q(links.To);
    for (const bool tables : {true, false}) {
        for (const SchemaEntry& entry : schema) {
            if ((entry.Type == QStringLiteral("table")) != tables ||
                entry.Name.startsWith(QStringLiteral("sqlite_")))
                continue;
            if (!q.exec(entry.Sql))
                return DbResult::Failure(ErrorText(q.lastError()));
            if (DbResult copied = tables ? CopyReadableRows(links, entry.Name) : DbResult();
                !copied)
                return copied;
        }
    }
    CopySequences(links);
    return DbResult::Success();
}

// The shipped layout, for a damaged file whose own schema cannot be read.
DbResult TemplateSchema(Database& out)
{
    QFile schema(QStringLiteral(":/logdb/default_schema.sql"));
    if (!schema.open(QIODevice::ReadOnly))
        return DbResult::Failure(QStringLiteral("The log's schema is missing from the program."));
    return RunScript(out, QString::fromUtf8(schema.readAll()));
}

// The highest record number the damaged file is known to have given.
qint64 HighestNumber(const QSqlDatabase& from, const QSqlDatabase& to)
{
    qint64 highest = 0;
    for (const auto& [db, sql] :
         {std::pair{from, "SELECT seq FROM sqlite_sequence WHERE name = 'table1'"},
          std::pair{to, "SELECT max(rowid) FROM table1"}}) {
        QSqlQuery q(db);
        if (q.exec(QLatin1String(sql)) && q.next())
            highest = std::max(highest, q.value(0).toLongLong());
    }
    return highest;
}

// Every record the damaged file's table1 still has, read through the engine where it can
// and from the pages where it cannot; then the values no column can hold are taken out.
DbResult RebuildAll(const QString& path, Database& damaged, Database& out, RepairReport& report)
{
    const RebuildLinks links{damaged.Connection(), out.Connection()};
    DbResult result;
    const std::vector<SchemaEntry> schema = ReadSchema(links.From, result);
    const bool ownSchema =
        result && std::any_of(schema.begin(), schema.end(), [](auto& e) {
            return e.Name.compare(QStringLiteral("table1"), Qt::CaseInsensitive) == 0;
        });
    result = ownSchema ? RebuildInto(links, schema) : TemplateSchema(out);
    if (!result)
        return result;
    AddSalvagedRecords(path, links.To, QStringLiteral("table1"));
    report.Marked = OutOfRangeValues(links.To, true);
    report.Kept = CountRecords(links.To, QStringLiteral("table1"));
    // A year file holds a record for every day: where the damaged file no longer tells its
    // highest number, the days of its year do.
    bool named = false;
    const int year = QFileInfo(path).fileName().left(4).toInt(&named);
    const qint64 days = named ? QDate(year, 1, 1).daysInYear() : 0;
    report.Unreadable =
        int(std::max<qint64>(0, std::max(HighestNumber(links.From, links.To), days) - report.Kept));
    return DbResult::Success();
}

DbResult Rebuild(const QString& path, Database& damaged, const QString& target,
                 RepairReport& report)
{
    if (DbResult created = CreateEmptyFile(target); !created)
        return created;
    Database out;
    if (DbResult opened = out.Open(target); !opened)
        return opened;
    if (DbResult rebuilt =
            out.InTransaction([&] { return RebuildAll(path, damaged, out, report); });
        !rebuilt)
        return rebuilt;
    return CheckIntegrity(out);
}

} // namespace

RepairReport RepairYearFile(const QString& path, const QString& connect)
{
    FileOps ops;
    return RepairYearFile(path, connect, ops);
}

RepairReport RepairYearFile(const QString& path, const QString& connect, FileOps& ops)
{
    RepairReport report;
    report.KeptAs = QFileInfo(Companion(path, ".BAD")).fileName();
    const QString rebuilt = NewCopyName(path, QStringLiteral("Rep"));
    const auto failed = [&](const DbResult& failure) {
        report.Result = Fail(ops, rebuilt, failure);
        return report;
    };
    const YearFileLock lock(path);
    if (!lock.Held()) {
        report.Result = DbResult::Failure(lock.Message());
        return report;
    }
    if (QFileInfo(path).size() < SmallestPage) { // nothing in it to read
        report.Result = CheckLogBytes(path);
        report.Result.Message +=
            QStringLiteral(" Nothing can be read from it; it is kept as it is.");
        return report;
    }
    {
        // A file the engine cannot open is read from its pages alone.
        Database damaged;
        const bool opened = bool(damaged.Open(path, connect));
        if (opened && CheckFile(path, connect) &&
            OutOfRangeValues(damaged.Connection(), false) == 0) {
            report.Kept = CountRecords(damaged.Connection(), QStringLiteral("table1"));
            return report;
        }
        report.Damaged = true;
        if (ops.Exists(rebuilt) && !ops.Remove(rebuilt))
            return failed(StepFailed(QStringLiteral("Cannot delete '%1'").arg(rebuilt), ops));
        if (DbResult made = Rebuild(path, damaged, rebuilt, report); !made)
            return failed(made);
        if (!opened && report.Kept == 0)
            return failed(DbResult::Failure(
                QStringLiteral("No record of a log can be read from %1; it is kept as it is.")
                    .arg(QFileInfo(path).fileName())));
    }
    if (!ops.Sync(rebuilt))
        return failed(
            StepFailed(QStringLiteral("Cannot write '%1' to the disk").arg(rebuilt), ops));
    if (DbResult replaced = ReplaceInPlace(path, rebuilt, Companion(path, ".BAD"), ops); !replaced)
        return failed(replaced);
    return report;
}

QString RepairReport::Summary() const
{
    if (!Damaged)
        return QStringLiteral("The file is sound: all %1 records are kept as they were.").arg(Kept);
    const QString marked =
        Marked == 0 ? QString()
                    : QStringLiteral(" Values that could not be right: %1, emptied and noted in "
                                     "their day's Notes.")
                          .arg(Marked);
    return QStringLiteral("%1 records kept, %2 could not be read.%3 The damaged file is kept as "
                          "%4.")
        .arg(Kept)
        .arg(Unreadable)
        .arg(marked, KeptAs);
}
