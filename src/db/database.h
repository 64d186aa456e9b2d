// SPDX-License-Identifier: GPL-3.0-or-later
// An open log or city database file: SQLite through Qt Sql, one uniquely named connection per
// object, statements in the program's Jet dialect, and the file's password.
//
// SQLite does not encrypt. A password set on a file is kept as a salted, iterated SHA-256
// hash in the table QuillmereLock; Open refuses such a file unless the connect string carries
// the same password (";pwd=..."). This keeps the program's rule that a protected file needs
// its password, but it is a gate, not secrecy: the file's rows remain readable to other tools.
#pragma once

#include "db/dberror.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QString>
#include <QVariant>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

// The outcome of a database operation; the message says what went wrong in words a window
// can show.
struct DbResult {
    bool Ok = true;
    QString Message;

    static DbResult Success() { return {}; }
    static DbResult Failure(const QString& message) { return {false, message}; }
    explicit operator bool() const { return Ok; }
};

// How a column's values are stored, from its declared type.
enum class ColumnKind { Integer, Double, Date, Time, DateTime, Text };

struct ColumnInfo {
    QString Name;
    QString DeclaredType;
    ColumnKind Kind = ColumnKind::Text;
    bool PrimaryKey = false;
};

// Column values of one record, in the order they are written.
using FieldValues = std::vector<std::pair<QString, QVariant>>;

// New values for the record with the given key.
struct RecordChange {
    QVariant Key;
    FieldValues Fields;
};

// Rows of a query result.
struct RowSet {
    std::vector<QString> Fields;
    std::vector<std::vector<QVariant>> Rows;
};

ColumnKind KindOfDeclaredType(const QString& declaredType);

// The value as a number (a text read with the C locale), if it is one.
std::optional<double> NumberOf(const QVariant& value);

// The value in the column's stored form: "03/10/2024" into a DATE column is "2024-03-10",
// "07:05 PM" into a TIME column "19:05:00", "3" into an integer column 3; an empty text is
// NULL. Nothing when the value does not fit the column.
std::optional<QVariant> ToStored(ColumnKind kind, const QVariant& value);

class Database {
public:
    Database();
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    // Opens an existing file; connect is a Jet connect string such as ";pwd=secret".
    DbResult Open(const QString& path, const QString& connect = {});
    void Close();
    bool IsOpen() const;
    QString Path() const { return path_; }

    // Runs one action statement in the program's dialect (DROP TABLE [T];, select ... into).
    DbResult Execute(const QString& jetSql);
    // Runs one select statement in the program's dialect. The source table is set to the one
    // table it reads, when it reads just one. Each "?" in the statement is bound to the next
    // of the parameters.
    DbResult Query(const QString& jetSql, RowSet& result, QString* sourceTable = nullptr,
                   const QVariantList& parameters = {});

    // The table's columns in order; empty when there is no such table.
    std::vector<ColumnInfo> Columns(const QString& table) const;
    QStringList Tables() const;

    // Adds the records to the table in one transaction: all of them, or on any failure none.
    DbResult InsertRecords(const QString& table, const std::vector<FieldValues>& records);
    // Sets the fields of the record whose key column has the given value, in the tables
    // given, in one transaction.
    DbResult UpdateRecord(const QStringList& tables, const QString& keyColumn, const QVariant& key,
                          const FieldValues& fields);
    // Sets the fields of many records of one table by key in one transaction: all of them or,
    // on any failure, none.
    DbResult UpdateRecords(const QString& table, const QString& keyColumn,
                           const std::vector<RecordChange>& changes);
    DbResult InsertRecord(const QString& table, const FieldValues& fields, QVariant& newKey);
    DbResult DeleteRecord(const QString& table, const QString& keyColumn, const QVariant& key);
    // Reads the named fields of the record whose key column has the given value.
    DbResult ReadRecord(const QString& table, const QString& keyColumn, const QVariant& key,
                        const std::vector<QString>& fields, std::vector<QVariant>& values);

    // Protects the file with a password, or removes the protection when it is empty.
    DbResult SetPassword(const QString& password);

    // The connection, for the layer's own file operations.
    QSqlDatabase Connection() const;
    // Runs the steps in one transaction, rolled back when a step fails.
    DbResult InTransaction(const std::function<DbResult()>& steps);

private:
    DbResult CheckPassword(const QString& connect);
    DbResult RunInTransaction(const std::vector<QString>& statements);
    // One UPDATE of the record with the key; nothing to do when there are no fields.
    DbResult UpdateIn(const QString& table, const QString& keyColumn, const QVariant& key,
                      const FieldValues& fields);
    // The fields converted for the table's columns; fails on an unknown column or a value
    // that does not fit.
    DbResult Prepare(const QString& table, const FieldValues& fields,
                     std::vector<std::pair<ColumnInfo, QVariant>>& prepared) const;
    DbResult Prepare(const std::vector<ColumnInfo>& columns, const QString& table,
                     const FieldValues& fields,
                     std::vector<std::pair<ColumnInfo, QVariant>>& prepared) const;

    QString connectionName_;
    QString path_;
};

// The password a Jet connect string carries (";pwd=secret"), or an empty text.
QString ConnectPassword(const QString& connect);

// A name for a new Qt Sql connection that no other connection uses.
QString UniqueConnectionName();

// Double-quoted SQLite name, for names checked against the file's schema.
QString QuotedName(const QString& name);

// "?, ?, ?": the parameter marks of a statement with count values.
QString Placeholders(int count);
