// SPDX-License-Identifier: GPL-3.0-or-later
// Running the query builder's chain of select-into steps on a year file.
#pragma once

#include "db/database.h"
#include "logdb/querybuilder.h"

#include <QStringList>

#include <string_view>

#include <string>
#include <vector>

// The query builder's texts (statements, captions) for Qt.
inline QString QStringOf(std::string_view text)
{
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

// Runs each step on the file: Table2 is dropped and made by the step, then Table3 is dropped
// and made as a copy of Table2, so Table3 holds the records that passed every step so far.
// A step the engine refuses is passed over and the chain goes on; the engine's words for each
// refused step are returned (a missing work table to drop is expected and not reported).
// Then the catch conditions narrow Table3, in the same transaction.
QStringList RunSelectionSteps(const QString& path, const std::vector<std::string>& steps,
                              const CatchConditions& catches = {});

// Table3 made again as a copy of the whole of table1, as after "All Records".
DbResult CopyAllRecordsToWorkTable(const QString& path);

struct Selection {
    QString Error;        // a value the user must correct; nothing ran
    QStringList Refused;  // steps the engine passed over
    QString RecordSource; // Table3 in the chosen order
    QString Caption;      // "Sorted by ..."
};

// "Select Data Where": checks the form, runs its steps and names the ordered result.
Selection SelectDataWhere(const QString& path, const QueryForm& form, int sortIndex);
