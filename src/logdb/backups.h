// SPDX-License-Identifier: GPL-3.0-or-later
// Backups of the year files, made without the angler thinking of them: a copy goes to the
// "backups" folder beside the year files whenever a year file is opened for editing and has
// changed since its last copy. The last ten copies of each year are kept.
#pragma once

#include "db/database.h"

#include <QDateTime>
#include <QStringList>

inline constexpr int BackupsKeptPerYear = 10;

// "<folder of the year file>/backups".
QString BackupFolder(const QString& yearFile);

// "2024_2026-11-23_17-45-01.mdb": the year, then the date and time the copy was made.
QString BackupFileName(const QString& yearFile, const QDateTime& taken);

// The year file's backups, newest first, as full paths.
QStringList ListBackups(const QString& yearFile);

// The moment a backup was taken, read from its name; invalid for other names.
QDateTime BackupTime(const QString& backup);

// Copies the year file into the backups folder unless the newest backup holds the same bytes,
// then deletes the oldest copies beyond ten.
DbResult BackUpIfChanged(const QString& yearFile, const QDateTime& now);
// The same, for a writer that already holds the year's lock.
DbResult BackUpHoldingLock(const QString& yearFile, const QDateTime& now);

// Puts the backup in the place of the year file. The current file is backed up first (unless
// the newest backup already holds it), so a restore can itself be undone; the year file is replaced
// in one step, never half-written.
DbResult RestoreBackup(const QString& yearFile, const QString& backup, const QDateTime& now);
