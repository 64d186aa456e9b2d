// SPDX-License-Identifier: GPL-3.0-or-later
// Export from Database Functions: the selected year's records with their catches, as CSV (one
// line per catch after its day's columns) or JSON (the catches nested in their day), chosen by
// the file's extension; the file is written whole or not at all.
#pragma once

#include "logdb/logstate.h"

void ExportCatches(const LogContext& context, const QString& yearFile, const QString& target);
