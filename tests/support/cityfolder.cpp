// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/cityfolder.h"

#include "support/testenv.h"

#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>

namespace {
// Runs the statement on its own connection, handing each row's first value to the list.
bool Run(const QString& folder, const QString& sql, const QVariantList& values, QStringList* rows)
{
    bool ok = false;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), "cityfolder");
        db.setDatabaseName(QDir(folder).filePath("Encdb.MDB"));
        if (db.open()) {
            QSqlQuery q(db);
            q.prepare(sql);
            for (const QVariant& v : values)
                q.addBindValue(v);
            ok = q.exec();
            while (rows && q.next())
                *rows << q.value(0).toString();
        }
    }
    QSqlDatabase::removeDatabase("cityfolder");
    return ok;
}
} // namespace

QString cityfolder::Make(const QString& name, bool withCityList)
{
    const QString folder = testenv::FreshDir(name);
    if (withCityList)
        QFile::copy(QStringLiteral(QUILLMERE_ENCDB), QDir(folder).filePath("Encdb.MDB"));
    return folder;
}

QStringList cityfolder::Column(const QString& folder, const QString& sql,
                               const QVariantList& values)
{
    QStringList rows;
    Run(folder, sql, values, &rows);
    return rows;
}

bool cityfolder::Exec(const QString& folder, const QString& sql, const QVariantList& values)
{
    return Run(folder, sql, values, nullptr);
}
