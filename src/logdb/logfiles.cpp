#include "logdb/logfiles.h"

#include "logdb/jetsql.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

#include <algorithm>
#include <limits>

namespace {

// How far past the last readable rowid a repair looks for more records when nothing readable
// tells where the table ends.
constexpr qint64 BlindProbeSpan = 65536;

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

// Puts `fresh` in the place of `path`, keeping the previous file as `keep`; when the last
// rename fails the previous file gets its name back.
DbResult Replace(const QString& path, const QString& fresh, const QString& keep, FileOps& ops)
{
    if (ops.Exists(keep) && !ops.Remove(keep))
        return DbResult::Failure(QStringLiteral("Cannot delete '%1'.").arg(keep));
    if (!ops.Rename(path, keep))
        return DbResult::Failure(QStringLiteral("Cannot rename '%1' to '%2'.").arg(path, keep));
    if (!ops.Rename(fresh, path)) {
        ops.Rename(keep, path);
        return DbResult::Failure(QStringLiteral("Cannot rename '%1' to '%2'.").arg(fresh, path));
    }
    return DbResult::Success();
}

DbResult CheckFile(const QString& path, const QString& connect)
{
    Database db;
    DbResult result = db.Open(path, connect);
    return result ? CheckIntegrity(db) : result;
}

DbResult Fail(FileOps& ops, const QString& leftover, const DbResult& failure)
{
    ops.Remove(leftover);
    return failure;
}

} // namespace

bool FileOps::Exists(const QString& path) const { return QFileInfo::exists(path); }
bool FileOps::Remove(const QString& path) { return QFile::remove(path); }
bool FileOps::Rename(const QString& from, const QString& to) { return QFile::rename(from, to); }

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

CreateYearResult CreateYearFile(const QString& folder, int year)
{
    CreateYearResult out;
    out.Path = QDir(folder).filePath(YearFileName(year));
    if (QFileInfo::exists(out.Path)) {
        out.Outcome = CreateYearResult::Status::AlreadyExists;
        return out;
    }
    const QString templatePath = QDir(folder).filePath(TemplateFileName);
    if (!QFileInfo::exists(templatePath)) {
        if (DbResult made = CreateTemplateFile(templatePath); !made) {
            out.Message = made.Message;
            return out;
        }
    }
    const QString copying = out.Path + QStringLiteral(".new");
    QFile::remove(copying);
    if (!QFile::copy(templatePath, copying) || !QFile::rename(copying, out.Path)) {
        QFile::remove(copying);
        out.Message = QStringLiteral("Cannot copy '%1' to '%2'.").arg(templatePath, out.Path);
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
    const QString compacted = Sibling(path, QStringLiteral("New") + QFileInfo(path).fileName());
    if (ops.Exists(compacted) && !ops.Remove(compacted)) // left by an interrupted compaction
        return DbResult::Failure(QStringLiteral("Cannot delete '%1'.").arg(compacted));
    {
        Database db;
        if (DbResult opened = db.Open(path, connect); !opened)
            return opened;
        QSqlQuery q(db.Connection());
        q.prepare(QStringLiteral("VACUUM INTO ?"));
        q.addBindValue(compacted);
        if (!q.exec())
            return Fail(ops, compacted, DbResult::Failure(ErrorText(q.lastError())));
    }
    if (DbResult checked = CheckFile(compacted, connect); !checked)
        return Fail(ops, compacted, checked);
    if (DbResult replaced = Replace(path, compacted, Companion(path, ".BAK"), ops); !replaced)
        return Fail(ops, compacted, replaced);
    return DbResult::Success();
}

namespace {

// The rebuild reads the damaged file on one connection and writes the new file on another:
// an engine error met while reading must not touch the write transaction.
struct RebuildLinks {
    QSqlDatabase From;
    QSqlDatabase To;
};

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
            continue; // a record whose own pages are damaged is lost; the others are kept
        const int count = read.record().count();
        if (write.lastQuery().isEmpty())
            write.prepare(QStringLiteral("INSERT INTO %1 VALUES (%2)")
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

DbResult Rebuild(Database& damaged, const QString& target)
{
    if (DbResult created = CreateEmptyFile(target); !created)
        return created;
    Database out;
    if (DbResult opened = out.Open(target); !opened)
        return opened;
    const RebuildLinks links{damaged.Connection(), out.Connection()};
    DbResult result;
    const std::vector<SchemaEntry> schema = ReadSchema(links.From, result);
    if (!result)
        return result;
    QSqlDatabase to = links.To;
    if (!to.transaction())
        return DbResult::Failure(ErrorText(to.lastError()));
    result = RebuildInto(links, schema);
    if (!result) {
        to.rollback();
        return result;
    }
    if (!to.commit())
        return DbResult::Failure(ErrorText(to.lastError()));
    return CheckIntegrity(out);
}

} // namespace

DbResult RepairDB(const QString& path, const QString& connect)
{
    FileOps ops;
    return RepairDB(path, connect, ops);
}

DbResult RepairDB(const QString& path, const QString& connect, FileOps& ops)
{
    const QString rebuilt = Sibling(path, QStringLiteral("Rep") + QFileInfo(path).fileName());
    {
        Database damaged;
        if (DbResult opened = damaged.Open(path, connect); !opened)
            return opened;
        if (CheckIntegrity(damaged))
            return DbResult::Success(); // nothing to repair
        if (ops.Exists(rebuilt) && !ops.Remove(rebuilt))
            return DbResult::Failure(QStringLiteral("Cannot delete '%1'.").arg(rebuilt));
        if (DbResult made = Rebuild(damaged, rebuilt); !made)
            return Fail(ops, rebuilt, made);
    }
    if (DbResult replaced = Replace(path, rebuilt, Companion(path, ".BAD"), ops); !replaced)
        return Fail(ops, rebuilt, replaced);
    return DbResult::Success();
}
