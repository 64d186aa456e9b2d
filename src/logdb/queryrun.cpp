#include "logdb/queryrun.h"

#include "logdb/querybuilder.h"

#include <QSqlQuery>

namespace {

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
    if (const DbResult opened = db.Open(path); !opened)
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
