// SPDX-License-Identifier: GPL-3.0-or-later
// The log's report text over a data control's records. No widgets: the report window and the
// command line share it; pages/reportpage draws it.
#pragma once

#include "db/database.h"

#include <QString>

#include <functional>

class DataControl;

// The report text of the control's records from the first to the last, in record-source
// order, each day's catches on lines under it; progress is told the number of records done
// so far. The last record stays current.
QString BuildReportText(DataControl& data, bool ampm,
                        const std::function<void(int lines)>& progress = {});

// The report text of the records of a record source on the file.
DbResult ReadReportText(const QString& path, const QString& recordSource, bool ampm, QString& text);

// The report text as a print makes it: the text with a dash line and a line end appended.
QString TextForPrinting(const QString& text);
