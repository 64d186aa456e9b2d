// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/filledyear.h"

#include "astro/astronomy.h"
#include "calendar/calendar.h"
#include "db/datacontrol.h"
#include "logdb/filldata.h"
#include "logdb/logfiles.h"
#include "support/testenv.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>

#include <gtest/gtest.h>

namespace logtest {

QString MakeFilledYearFile(const QString& folderName)
{
    const QString folder = testenv::FreshDir(folderName);
    const QString path = CreateYearFile(folder, 2024).Path;
    Astronomy engine;
    engine.Site.SetPlace(80.0, 40.44, 5);
    const Calendar cal = YearCalendar(engine, 2024, 0);
    DataControl data0;
    const DbResult filled = FillYearFile(data0, path, engine, cal, -60);
    EXPECT_TRUE(filled) << filled.Message.toStdString();
    PlainExec(path, "UPDATE table1 SET TotalTaken = DBID % 7 WHERE DBID % 10 = 0");
    return path;
}

void PlainExec(const QString& path, const QString& sqliteSql) { PlainRows(path, sqliteSql); }

std::vector<std::vector<QVariant>> PlainRows(const QString& path, const QString& sqliteSql)
{
    std::vector<std::vector<QVariant>> rows;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase("QSQLITE", "plainsql");
        db.setDatabaseName(path);
        EXPECT_TRUE(db.open());
        QSqlQuery q(db);
        EXPECT_TRUE(q.exec(sqliteSql)) << q.lastError().text().toStdString();
        while (q.next()) {
            rows.emplace_back();
            for (int c = 0; c < q.record().count(); ++c)
                rows.back().push_back(q.value(c));
        }
    }
    QSqlDatabase::removeDatabase("plainsql");
    return rows;
}

std::vector<QVariant> PlainColumn(const QString& path, const QString& sqliteSql)
{
    std::vector<QVariant> values;
    for (const auto& row : PlainRows(path, sqliteSql))
        values.push_back(row.at(0));
    return values;
}

std::vector<int> PlainIds(const QString& path, const QString& sqliteSql)
{
    std::vector<int> ids;
    for (const QVariant& v : PlainColumn(path, sqliteSql))
        ids.push_back(v.toInt());
    return ids;
}

} // namespace logtest
