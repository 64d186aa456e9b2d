// SPDX-License-Identifier: GPL-3.0-or-later
// Import from Database Functions: reads the CSV file (or the log's JSON export, by its
// extension), says line by line what is wrong with it before anything is written, lets the
// angler skip or overwrite the days that already hold an entry, backs the year file up and
// brings the catches in.
#pragma once

#include "logdb/logstate.h"

void ImportCatches(const LogContext& context, const QString& yearFile, const QString& csvPath);
