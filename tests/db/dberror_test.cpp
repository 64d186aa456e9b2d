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

namespace {

// A database with one table and one row, open.
QString MadeDatabase(const QString& folder)
{
    const QString path = QDir(folder).filePath("log.mdb");
    testenv::WriteFile(path);
    Database db;
    EXPECT_TRUE(db.Open(path));
    EXPECT_TRUE(db.Execute("CREATE TABLE t (x INTEGER)"));
    EXPECT_TRUE(db.Execute("INSERT INTO t VALUES (1)"));
    return path;
}

} // namespace

TEST(DatabaseErrors, NameTheirCauseInOneLine)
{
    const struct {
        const char* Name;
        // Makes the condition around the open database; gives back what it holds.
        std::function<std::shared_ptr<void>(const QString& path)> Condition;
        const char* Cause;
    } cases[] = {
        {"locked by another connection",
         [](const QString& path) {
             auto holder = std::make_shared<Database>();
             EXPECT_TRUE(holder->Open(path));
             EXPECT_TRUE(QSqlQuery(holder->Connection()).exec("BEGIN EXCLUSIVE"));
             return std::shared_ptr<void>(holder);
         },
         "the file is locked: another program is writing it"},
        {"a folder where the journal goes",
         [](const QString& path) {
             EXPECT_TRUE(QDir().mkpath(path + "-journal"));
             return std::shared_ptr<void>();
         },
         "a folder named log.mdb-journal stands where the engine writes its journal"},
        {"replaced while open",
         [](const QString& path) {
             EXPECT_TRUE(QFile::remove(path));
             EXPECT_TRUE(QFile::copy(path + ".copy", path));
             return std::shared_ptr<void>();
         },
         "the file was moved, deleted or replaced while it was open"},
    };
    for (const auto& c : cases) {
        const QString path = MadeDatabase(testenv::FreshDir("db-errors"));
        ASSERT_TRUE(QFile::copy(path, path + ".copy"));
        Database db;
        ASSERT_TRUE(db.Open(path));
        const auto held = c.Condition(path);
        const DbResult failed = db.Execute("INSERT INTO t VALUES (2)");
        ASSERT_FALSE(failed) << c.Name;
        EXPECT_TRUE(failed.Message.startsWith(c.Cause))
            << c.Name << ": " << failed.Message.toStdString();
        EXPECT_FALSE(failed.Message.contains('\n')) << c.Name;
    }

    // A file that is no database does not open, and says so.
    const QString text = QDir(testenv::FreshDir("db-errors")).filePath("notes.mdb");
    testenv::WriteFile(text, QByteArray(4096, 'x'));
    Database db;
    const DbResult opened = db.Open(text);
    ASSERT_FALSE(opened);
    EXPECT_TRUE(opened.Message.contains(": it is not a database file"))
        << opened.Message.toStdString();
}
