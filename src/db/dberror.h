// SPDX-License-Identifier: GPL-3.0-or-later
// SQLite's errors in words a user can act on: the cause (another program holds the file, no
// permission, a read-only disk, not a database, a full disk) instead of the engine's bare
// "disk I/O error", from the extended result code Qt Sql reports and, where the code leaves
// the cause open, the file and its folder as they are now.
#pragma once

#include <QSqlError>
#include <QString>

// One line for the error of an operation on the database file at path (empty when not known):
// the cause in words, with the engine's own text after it.
QString ErrorText(const QSqlError& error, const QString& path = {});
