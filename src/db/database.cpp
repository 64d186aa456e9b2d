// SPDX-License-Identifier: GPL-3.0-or-later
#include "db/database.h"

#include "db/jetsql.h"
#include "db/storedforms.h"

#include <QCryptographicHash>
#include <QDate>
#include <QDateTime>
#include <QFileInfo>
#include <QLocale>
#include <QRandomGenerator>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTime>
#include <QUuid>

#include <cmath>

namespace {

constexpr auto LockTable = "QuillmereLock";
constexpr int HashRounds = 20000;

QString PasswordHash(const QString& salt, const QString& password)
{
    const QByteArray salted = salt.toUtf8() + password.toUtf8();
    QByteArray hash = QCryptographicHash::hash(salted, QCryptographicHash::Sha256);
    for (int i = 1; i < HashRounds; ++i)
        hash = QCryptographicHash::hash(hash + salted, QCryptographicHash::Sha256);
    return QString::fromLatin1(hash.toHex());
}

std::optional<QVariant> StoredText(std::optional<std::string> stored)
{
    if (!stored)
        return std::nullopt;
    return QVariant(QString::fromStdString(*stored));
}

std::optional<QVariant> ToStoredInteger(const QVariant& value)
{
    const auto number = NumberOf(value);
    if (!number || std::fabs(*number) > 9.0e18)
        return std::nullopt;
    return QVariant(qlonglong(std::llround(*number)));
}

std::optional<QVariant> ToStoredDate(const QVariant& value)
{
    if (value.typeId() == QMetaType::QDate)
        return QVariant(value.toDate().toString(Qt::ISODate));
    return StoredText(StoredDate(value.toString().toStdString()));
}

std::optional<QVariant> ToStoredTime(const QVariant& value)
{
    if (value.typeId() == QMetaType::QTime)
        return QVariant(value.toTime().toString(QStringLiteral("HH:mm:ss")));
    return StoredText(StoredTime(value.toString().toStdString()));
}

std::optional<QVariant> ToStoredDateTime(const QVariant& value)
{
    if (value.typeId() == QMetaType::QDateTime)
        return QVariant(value.toDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")));
    return StoredText(StoredDateTime(value.toString().toStdString()));
}

bool IsBlank(const QVariant& value)
{
    return value.isNull() ||
           (value.typeId() == QMetaType::QString && value.toString().trimmed().isEmpty());
}

} // namespace

std::optional<double> NumberOf(const QVariant& value)
{
    bool ok = false;
    const double number = value.typeId() == QMetaType::QString
                              ? QLocale::c().toDouble(value.toString().trimmed(), &ok)
                              : value.toDouble(&ok);
    if (!ok || !std::isfinite(number))
        return std::nullopt;
    return number;
}

ColumnKind KindOfDeclaredType(const QString& declaredType)
{
    const QString t = declaredType.toUpper();
    if (t.contains("INT"))
        return ColumnKind::Integer;
    if (t.contains("DATETIME") || t.contains("TIMESTAMP"))
        return ColumnKind::DateTime;
    if (t.contains("DATE"))
        return ColumnKind::Date;
    if (t.contains("TIME"))
        return ColumnKind::Time;
    for (const char* numeric : {"REAL", "FLOA", "DOUB", "NUM", "DEC", "CURRENCY"}) {
        if (t.contains(numeric))
            return ColumnKind::Double;
    }
    return ColumnKind::Text;
}

std::optional<QVariant> ToStored(ColumnKind kind, const QVariant& value)
{
    if (IsBlank(value))
        return QVariant();
    switch (kind) {
    case ColumnKind::Integer:
        return ToStoredInteger(value);
    case ColumnKind::Double: {
        const auto number = NumberOf(value);
        return number ? std::optional<QVariant>(QVariant(*number)) : std::nullopt;
    }
    case ColumnKind::Date:
        return ToStoredDate(value);
    case ColumnKind::Time:
        return ToStoredTime(value);
    case ColumnKind::DateTime:
        return ToStoredDateTime(value);
    case ColumnKind::Text:
        break;
    }
    return QVariant(value.toString());
}

QString ConnectPassword(const QString& connect)
{
    QString password;
    for (const QString& part : connect.split(';')) {
        const QString item = part.trimmed();
        if (item.startsWith(QStringLiteral("pwd="), Qt::CaseInsensitive))
            password = item.mid(4);
    }
    return password;
}

QString UniqueConnectionName()
{
    return QStringLiteral("quillmere-") + QUuid::createUuid().toString(QUuid::WithoutBraces);
}

QString Placeholders(int count)
{
    QStringList marks;
    for (int i = 0; i < count; ++i)
        marks << QStringLiteral("?");
    return marks.join(QStringLiteral(", "));
}

QString QuotedName(const QString& name)
{
    QString quoted = name;
    quoted.replace('"', QStringLiteral("\"\""));
    return '"' + quoted + '"';
}

Database::Database() = default;

Database::~Database() { Close(); }

DbResult Database::Open(const QString& path, const QString& connect)
{
    Close();
    if (!QFileInfo(path).isFile())
        return DbResult::Failure(QStringLiteral("Could not find file '%1'.").arg(path));
    connectionName_ = UniqueConnectionName();
    path_ = path;
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connectionName_);
    db.setDatabaseName(path);
    QSqlQuery probe(db);
    if (!db.open() || !probe.exec(QStringLiteral("SELECT count(*) FROM sqlite_master"))) {
        const QString reason = ErrorText(db.isOpen() ? probe.lastError() : db.lastError(), path);
        probe = QSqlQuery();
        db = QSqlDatabase();
        Close();
        return DbResult::Failure(QStringLiteral("Cannot open '%1': %2").arg(path, reason));
    }
    probe = QSqlQuery();
    db = QSqlDatabase();
    DbResult access = CheckPassword(connect);
    if (!access)
        Close();
    return access;
}

void Database::Close()
{
    if (connectionName_.isEmpty())
        return;
    QSqlDatabase::database(connectionName_, false).close();
    QSqlDatabase::removeDatabase(connectionName_);
    connectionName_.clear();
    path_.clear();
}

bool Database::IsOpen() const { return !connectionName_.isEmpty() && Connection().isOpen(); }

QSqlDatabase Database::Connection() const { return QSqlDatabase::database(connectionName_, false); }

DbResult Database::CheckPassword(const QString& connect)
{
    if (!Tables().contains(LockTable, Qt::CaseInsensitive))
        return DbResult::Success();
    QSqlQuery q(Connection());
    if (!q.exec(QStringLiteral("SELECT Salt, Hash FROM %1").arg(LockTable)))
        return DbResult::Failure(ErrorText(q.lastError(), path_));
    if (!q.next())
        return DbResult::Success();
    if (PasswordHash(q.value(0).toString(), ConnectPassword(connect)) != q.value(1).toString())
        return DbResult::Failure(QStringLiteral("Not a valid password."));
    return DbResult::Success();
}

DbResult Database::SetPassword(const QString& password)
{
    std::vector<QString> statements = {
        QStringLiteral("CREATE TABLE IF NOT EXISTS %1 (Salt TEXT NOT NULL, Hash TEXT NOT NULL)")
            .arg(LockTable),
        QStringLiteral("DELETE FROM %1").arg(LockTable)};
    if (!password.isEmpty()) {
        const QString salt = QString::number(QRandomGenerator::system()->generate64(), 16);
        // Salt and hash are hexadecimal digits made here, never user text.
        statements.push_back(QStringLiteral("INSERT INTO %1 VALUES ('%2', '%3')")
                                 .arg(LockTable, salt, PasswordHash(salt, password)));
    }
    return RunInTransaction(statements);
}

QStringList Database::Tables() const
{
    QStringList tables;
    QSqlQuery q(Connection());
    q.exec(QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table' "
                          "AND name NOT LIKE 'sqlite\\_%' ESCAPE '\\' ORDER BY rowid"));
    while (q.next())
        tables << q.value(0).toString();
    return tables;
}

std::vector<ColumnInfo> Database::Columns(const QString& table) const
{
    std::vector<ColumnInfo> columns;
    QSqlQuery q(Connection());
    q.prepare(QStringLiteral("SELECT name, type, pk FROM pragma_table_info(?) ORDER BY cid"));
    q.addBindValue(table);
    q.exec();
    while (q.next()) {
        const QString type = q.value(1).toString();
        columns.push_back(
            {q.value(0).toString(), type, KindOfDeclaredType(type), q.value(2).toInt() > 0});
    }
    return columns;
}

// A savepoint rather than BEGIN, so that a caller's own savepoint around many statements (a
// whole chain of query steps) can hold them in one transaction.
DbResult Database::RunInTransaction(const std::vector<QString>& statements)
{
    QSqlQuery q(Connection());
    if (!q.exec(QStringLiteral("SAVEPOINT jet_statement")))
        return DbResult::Failure(ErrorText(q.lastError(), path_));
    for (const QString& sql : statements) {
        if (!q.exec(sql)) {
            const QString reason = ErrorText(q.lastError(), path_);
            q.finish();
            q.exec(QStringLiteral("ROLLBACK TO jet_statement"));
            q.exec(QStringLiteral("RELEASE jet_statement"));
            return DbResult::Failure(reason);
        }
    }
    q.finish();
    if (!q.exec(QStringLiteral("RELEASE jet_statement")))
        return DbResult::Failure(ErrorText(q.lastError(), path_));
    return DbResult::Success();
}

namespace {

JetStatement Translate(const Database& db, const QString& jetSql)
{
    return TranslateJet(jetSql.toStdString(), [&db](std::string_view table) {
        std::vector<JetColumn> columns;
        for (const ColumnInfo& c :
             db.Columns(QString::fromUtf8(table.data(), qsizetype(table.size()))))
            columns.push_back({c.Name.toStdString(), c.DeclaredType.toStdString(), c.PrimaryKey});
        return columns;
    });
}

} // namespace

DbResult Database::Execute(const QString& jetSql)
{
    if (!IsOpen())
        return DbResult::Failure(QStringLiteral("The database is not open."));
    const JetStatement statement = Translate(*this, jetSql);
    if (!statement.Ok())
        return DbResult::Failure(QString::fromStdString(statement.Error));
    if (statement.StatementKind == JetStatement::Kind::Select)
        return DbResult::Failure(QStringLiteral("Cannot execute a select query."));
    std::vector<QString> statements;
    for (const std::string& sql : statement.Sql)
        statements.push_back(QString::fromStdString(sql));
    return RunInTransaction(statements);
}

DbResult Database::Query(const QString& jetSql, RowSet& result, QString* sourceTable,
                         const QVariantList& parameters)
{
    result = {};
    if (!IsOpen())
        return DbResult::Failure(QStringLiteral("The database is not open."));
    const JetStatement statement = Translate(*this, jetSql);
    if (!statement.Ok())
        return DbResult::Failure(QString::fromStdString(statement.Error));
    if (statement.StatementKind != JetStatement::Kind::Select)
        return DbResult::Failure(QStringLiteral("A record source must be a select query."));
    QSqlQuery q(Connection());
    q.setForwardOnly(true);
    if (!q.prepare(QString::fromStdString(statement.Sql.front())))
        return DbResult::Failure(ErrorText(q.lastError(), path_));
    for (const QVariant& value : parameters)
        q.addBindValue(value);
    if (!q.exec())
        return DbResult::Failure(ErrorText(q.lastError(), path_));
    const QSqlRecord layout = q.record();
    for (int i = 0; i < layout.count(); ++i)
        result.Fields.push_back(layout.fieldName(i));
    while (q.next()) {
        std::vector<QVariant> row;
        row.reserve(std::size_t(layout.count()));
        for (int i = 0; i < layout.count(); ++i)
            row.push_back(q.value(i));
        result.Rows.push_back(std::move(row));
    }
    if (q.lastError().isValid())
        return DbResult::Failure(ErrorText(q.lastError(), path_));
    if (sourceTable)
        *sourceTable = QString::fromStdString(statement.SourceTable);
    return DbResult::Success();
}

DbResult Database::Prepare(const QString& table, const FieldValues& fields,
                           std::vector<std::pair<ColumnInfo, QVariant>>& prepared) const
{
    return Prepare(Columns(table), table, fields, prepared);
}

DbResult Database::Prepare(const std::vector<ColumnInfo>& columns, const QString& table,
                           const FieldValues& fields,
                           std::vector<std::pair<ColumnInfo, QVariant>>& prepared) const
{
    prepared.clear();
    if (columns.empty())
        return DbResult::Failure(QStringLiteral("Could not find table '%1'.").arg(table));
    for (const auto& field : fields) {
        const QString& name = field.first;
        const QVariant& value = field.second;
        const auto column = std::find_if(columns.begin(), columns.end(), [&](const ColumnInfo& c) {
            return c.Name.compare(name, Qt::CaseInsensitive) == 0;
        });
        if (column == columns.end())
            return DbResult::Failure(QStringLiteral("Item '%1' not found in %2.").arg(name, table));
        const auto stored = ToStored(column->Kind, value);
        if (!stored)
            return DbResult::Failure(QStringLiteral("Data type conversion error: '%1' for %2.")
                                         .arg(value.toString(), column->Name));
        prepared.emplace_back(*column, *stored);
    }
    return DbResult::Success();
}

namespace {

QString InsertSql(const QString& table, const std::vector<std::pair<ColumnInfo, QVariant>>& fields)
{
    if (fields.empty())
        return QStringLiteral("INSERT INTO %1 DEFAULT VALUES").arg(QuotedName(table));
    QStringList names;
    for (const auto& field : fields)
        names << QuotedName(field.first.Name);
    return QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
        .arg(QuotedName(table), names.join(QStringLiteral(", ")), Placeholders(int(fields.size())));
}

bool ExecBound(QSqlQuery& q, const QString& sql,
               const std::vector<std::pair<ColumnInfo, QVariant>>& fields,
               const std::vector<QVariant>& extra = {})
{
    if (q.lastQuery() != sql && !q.prepare(sql))
        return false;
    for (const auto& field : fields)
        q.addBindValue(field.second);
    for (const QVariant& value : extra)
        q.addBindValue(value);
    return q.exec();
}

} // namespace

DbResult Database::InsertRecords(const QString& table, const std::vector<FieldValues>& records)
{
    return InTransaction([&] {
        QSqlQuery q(Connection());
        std::vector<std::pair<ColumnInfo, QVariant>> prepared;
        const std::vector<ColumnInfo> columns = Columns(table); // read once for all the records
        for (std::size_t i = 0; i < records.size(); ++i) {
            DbResult result = Prepare(columns, table, records[i], prepared);
            if (result && !ExecBound(q, InsertSql(table, prepared), prepared))
                result = DbResult::Failure(ErrorText(q.lastError(), path_));
            if (!result)
                return DbResult::Failure(QStringLiteral("Record %1 not saved, no record added: %2")
                                             .arg(i + 1)
                                             .arg(result.Message));
        }
        return DbResult::Success();
    });
}

DbResult Database::InsertRecord(const QString& table, const FieldValues& fields, QVariant& newKey)
{
    std::vector<std::pair<ColumnInfo, QVariant>> prepared;
    if (DbResult result = Prepare(table, fields, prepared); !result)
        return result;
    QSqlQuery q(Connection());
    if (!ExecBound(q, InsertSql(table, prepared), prepared))
        return DbResult::Failure(ErrorText(q.lastError(), path_));
    newKey = q.lastInsertId();
    return DbResult::Success();
}

DbResult Database::InTransaction(const std::function<DbResult()>& steps)
{
    QSqlDatabase db = Connection();
    if (!db.transaction())
        return DbResult::Failure(ErrorText(db.lastError(), path_));
    if (DbResult result = steps(); !result) {
        db.rollback();
        return result;
    }
    if (!db.commit())
        return DbResult::Failure(ErrorText(db.lastError(), path_));
    return DbResult::Success();
}

DbResult Database::UpdateIn(const QString& table, const QString& keyColumn, const QVariant& key,
                            const FieldValues& fields)
{
    std::vector<std::pair<ColumnInfo, QVariant>> prepared;
    if (DbResult result = Prepare(table, fields, prepared); !result || prepared.empty())
        return result;
    QStringList sets;
    for (const auto& field : prepared)
        sets << QuotedName(field.first.Name) + QStringLiteral(" = ?");
    QSqlQuery q(Connection());
    const QString sql =
        QStringLiteral("UPDATE %1 SET %2 WHERE %3 = ?")
            .arg(QuotedName(table), sets.join(QStringLiteral(", ")), QuotedName(keyColumn));
    if (!ExecBound(q, sql, prepared, {key}))
        return DbResult::Failure(ErrorText(q.lastError(), path_));
    return DbResult::Success();
}

DbResult Database::UpdateRecord(const QStringList& tables, const QString& keyColumn,
                                const QVariant& key, const FieldValues& fields)
{
    return InTransaction([&] {
        for (const QString& table : tables) {
            if (DbResult result = UpdateIn(table, keyColumn, key, fields); !result)
                return result;
        }
        return DbResult::Success();
    });
}

DbResult Database::UpdateRecords(const QString& table, const QString& keyColumn,
                                 const std::vector<RecordChange>& changes)
{
    return InTransaction([&] {
        for (const RecordChange& change : changes) {
            if (DbResult result = UpdateIn(table, keyColumn, change.Key, change.Fields); !result)
                return result;
        }
        return DbResult::Success();
    });
}

DbResult Database::DeleteRecord(const QString& table, const QString& keyColumn, const QVariant& key)
{
    QSqlQuery q(Connection());
    q.prepare(QStringLiteral("DELETE FROM %1 WHERE %2 = ?")
                  .arg(QuotedName(table), QuotedName(keyColumn)));
    q.addBindValue(key);
    if (!q.exec())
        return DbResult::Failure(ErrorText(q.lastError(), path_));
    return DbResult::Success();
}

DbResult Database::ReadRecord(const QString& table, const QString& keyColumn, const QVariant& key,
                              const std::vector<QString>& fields, std::vector<QVariant>& values)
{
    QStringList names;
    for (const QString& name : fields)
        names << QuotedName(name);
    QSqlQuery q(Connection());
    q.prepare(QStringLiteral("SELECT %1 FROM %2 WHERE %3 = ?")
                  .arg(names.join(QStringLiteral(", ")), QuotedName(table), QuotedName(keyColumn)));
    q.addBindValue(key);
    if (!q.exec() || !q.next())
        return DbResult::Failure(q.lastError().isValid() ? ErrorText(q.lastError(), path_)
                                                         : QStringLiteral("No current record."));
    values.clear();
    for (int i = 0; i < int(fields.size()); ++i)
        values.push_back(q.value(i));
    return DbResult::Success();
}
