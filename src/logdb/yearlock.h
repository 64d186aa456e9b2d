// SPDX-License-Identifier: GPL-3.0-or-later
// One writer at a time per year file, for every program that writes one (the windows and
// quillmere-log, or two of either): an advisory lock on ".<year file>.lock" beside it. The
// engine's own locks cover one connection's transactions, not the rename with which a
// compaction, repair or restore replaces the file, nor the copy a backup makes of it.
#pragma once

#include "db/database.h"

#include <QString>

#include <chrono>

class YearFileLock {
public:
    // How long a writer waits for another one to finish: a compaction of a year takes well
    // under a second, a fill a few.
    static constexpr std::chrono::milliseconds DefaultWait{15000};

    // Waits up to `wait` for the lock; Held() tells whether it was had.
    explicit YearFileLock(const QString& yearFile, std::chrono::milliseconds wait = DefaultWait);
    ~YearFileLock();
    YearFileLock(const YearFileLock&) = delete;
    YearFileLock& operator=(const YearFileLock&) = delete;

    bool Held() const { return fd_ >= 0; }
    // Why the lock was not had, in words for the angler.
    QString Message() const { return message_; }

private:
    int fd_ = -1;
    QString message_;
};

// ".2024.mdb.lock", hidden from the file lists.
QString YearLockPath(const QString& yearFile);

class DataControl;

// Saves the data control's edit holding its year file's lock, as the record browser does: the
// save waits for another program's compaction, restore or import, then goes into the file it
// left.
DbResult UpdateUnderLock(DataControl& data);
