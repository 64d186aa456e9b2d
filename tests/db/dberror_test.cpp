// SPDX-License-Identifier: GPL-3.0-or-later
// Database errors reach the user naming their cause, under conditions the file system makes
// real for any user, the superuser too: another program holding the file, a file that is no
// database, a folder where the engine writes its journal, a file replaced while open.
#include "db/database.h"
#include "support/testenv.h"

#include <QDir>
#include <QFile>
#include <QSqlQuery>

#include <gtest/gtest.h>

#include <functional>

// Each condition is made around an open database holding one row; the insert after it must
// fail naming its cause in one line.
TEST(DatabaseErrors, NameTheirCauseInOneLine)
{
    Database holder;
    const std::pair<std::function<void(const QString&)>, const char*> cases[] = {
        {[&holder](const QString& path) {
             ASSERT_TRUE(holder.Open(path));
             ASSERT_TRUE(QSqlQuery(holder.Connection()).exec("BEGIN EXCLUSIVE"));
         },
         "the file is locked: another program is writing it"},
        {[](const QString& path) { ASSERT_TRUE(QDir().mkpath(path + "-journal")); },
         "a folder named log.mdb-journal stands where the engine writes its journal"},
        {[](const QString& path) {
             ASSERT_TRUE(QFile::remove(path));
             ASSERT_TRUE(QFile::copy(path + ".copy", path));
         },
         "the file was moved, deleted or replaced while it was open"},
    };
    for (const auto& [condition, cause] : cases) {
        const QString path = QDir(testenv::FreshDir("db-errors")).filePath("log.mdb");
        testenv::WriteFile(path);
        Database db;
        ASSERT_TRUE(db.Open(path));
        ASSERT_TRUE(db.Execute("CREATE TABLE t (x INTEGER)"));
        ASSERT_TRUE(QFile::copy(path, path + ".copy"));
        condition(path);
        const DbResult failed = db.Execute("INSERT INTO t VALUES (2)");
        EXPECT_TRUE(!failed && failed.Message.startsWith(cause) && !failed.Message.contains('\n'))
            << failed.Message.toStdString();
        holder.Close();
    }

    // A file that is no database does not open, and says so.
    const QString text = QDir(testenv::FreshDir("db-errors")).filePath("notes.mdb");
    testenv::WriteFile(text, QByteArray(4096, 'x'));
    Database db;
    EXPECT_TRUE(db.Open(text).Message.contains(": it is not a database file"));
}
