// SPDX-License-Identifier: GPL-3.0-or-later
#include "logdb/queryrun.h"

#include "logdb/querybuilder.h"

#include <QSqlDriver>
#include <QSqlQuery>

#include <sqlite3.h>

namespace {

// casefold(text): the text with every letter's case folded as Qt folds it. SQLite's own LIKE
// and NOCASE fold the ASCII letters only, so "Ål" would not find "ål".
void CaseFold(sqlite3_context* context, int /*count*/, sqlite3_value** values)
{
    if (sqlite3_value_type(values[0]) == SQLITE_NULL) {
        sqlite3_result_null(context);
        return;
    }
    const auto* text = static_cast<const void*>(sqlite3_value_text(values[0]));
    const QByteArray folded =
        QString::fromUtf8(static_cast<const char*>(text), sqlite3_value_bytes(values[0]))
            .toCaseFolded()
            .toUtf8();
    sqlite3_result_text(context, folded.constData(), static_cast<int>(folded.size()),
                        SQLITE_TRANSIENT);
}

// Gives the open connection the casefold function its catch conditions use.
DbResult AddCaseFold(Database& db)
{
    const QVariant handle = db.Connection().driver()->handle();
    if (!handle.isValid() || qstrcmp(handle.typeName(), "sqlite3*") != 0)
        return DbResult::Failure(QStringLiteral("The year file is not an SQLite database."));
    sqlite3* connection = *static_cast<sqlite3* const*>(handle.constData());
    const int made =
        sqlite3_create_function(connection, "casefold", 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC,
                                nullptr, CaseFold, nullptr, nullptr);
    return made == SQLITE_OK ? DbResult::Success()
                             : DbResult::Failure(QString::fromUtf8(sqlite3_errstr(made)));
}

// Drops the work table (which may not exist yet) and runs the statement that makes it again.
DbResult Remake(Database& db, const QString& table, const QString& statement)
{
    db.Execute(QStringLiteral("DROP TABLE [%1];").arg(table));
    return db.Execute(statement);
}

} // namespace

QStringList RunSelectionSteps(const QString& path, const std::vector<std::string>& steps,
                              const CatchConditions& catches)
{
    QStringList refused;
    Database db;
    DbResult opened = db.Open(path);
    opened = opened ? AddCaseFold(db) : opened;
    if (!opened)
        return {opened.Message};
    // The whole chain is one transaction: one write to the disk, and a crash leaves the work
    // tables of the previous selection.
    QSqlQuery chain(db.Connection());
    if (!chain.exec(QStringLiteral("SAVEPOINT selection")))
        return {ErrorText(chain.lastError())};
    for (const std::string& step : steps) {
        for (const DbResult& made : {Remake(db, QStringLiteral("Table2"), QStringOf(step)),
                                     Remake(db, QStringLiteral("Table3"), QStringOf(CopyStep))}) {
            if (!made)
                refused << made.Message;
        }
    }
    const bool catchTables = db.Tables().contains(QStringLiteral("Catches"));
    for (const BoundStep& step : CatchConditionSteps(catches, catchTables)) {
        QSqlQuery q(db.Connection());
        q.prepare(QStringOf(step.Statement));
        for (const std::string& parameter : step.Parameters)
            q.addBindValue(QString::fromStdString(parameter));
        if (!q.exec())
            refused << ErrorText(q.lastError());
    }
    if (!chain.exec(QStringLiteral("RELEASE selection")))
        refused << ErrorText(chain.lastError());
    return refused;
}

DbResult CopyAllRecordsToWorkTable(const QString& path)
{
    Database db;
    const DbResult opened = db.Open(path);
    return opened ? Remake(db, QStringLiteral("Table3"), QStringOf(AllRecordsStep)) : opened;
}

Selection SelectDataWhere(const QString& path, const QueryForm& form, int sortIndex)
{
    Selection selection;
    const SelectionPlan plan = PlanSelection(form);
    if (!plan.Ok()) {
        selection.Error = QString::fromStdString(plan.Error);
        return selection;
    }
    selection.Refused = RunSelectionSteps(path, plan.Steps, form.Catches);
    const Ordering& order = OrderingOf(sortIndex);
    selection.RecordSource = QStringOf(order.RecordSource);
    selection.Caption = QStringOf(order.Caption);
    return selection;
}
