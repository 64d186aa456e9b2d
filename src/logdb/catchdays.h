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
