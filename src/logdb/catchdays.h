// SPDX-License-Identifier: GPL-3.0-or-later
// Reads what the catch statistics need from year files.
#pragma once

#include "db/database.h"
#include "logdb/catchstats.h"

#include <QStringList>

#include <vector>

// Appends the records of the year file's table1 to days.
DbResult ReadCatchDays(const QString& path, std::vector<CatchDay>& days);

// The statistics over the records of every file given; fails on the first file that cannot be
// read, naming it.
DbResult CatchStatisticsOf(const QStringList& paths, CatchStatistics& stats);

struct CatchBreakdown;
struct CatchFact;

// Appends the year file's catches, each with its day's periods and sun events, to facts. A
// file without the catches' tables adds none.
DbResult ReadCatchFacts(const QString& path, std::vector<CatchFact>& facts);

// The per-catch breakdown over every file given (one year, or all years of the folder);
// fails on the first file that cannot be read, naming it.
DbResult CatchBreakdownOf(const QStringList& paths, CatchBreakdown& breakdown);
