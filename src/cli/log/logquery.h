// SPDX-License-Identifier: GPL-3.0-or-later
// The log's questions on the command line: the browser's fourteen conditions and five orders
// as options of "quillmere-log query" and "quillmere-log report", read into the same form the
// window fills, so both run the same checks and statements.
#pragma once

#include "logdb/querybuilder.h"
#include "logdb/queryrun.h"

#include <QString>

#include <map>
#include <optional>
#include <string>
#include <vector>

// The condition and order options, each taking a value unless it is a flag.
const std::vector<std::string>& QueryOptionNames();
bool IsQueryFlag(const std::string& option);

struct QueryRequest {
    QueryForm Form;
    int SortIndex = 1;
};

// The form and order the options ask for, or what is wrong with them. Values are put into
// the form as given; the form's own checks refuse what a condition cannot hold.
std::optional<std::string> ReadQueryOptions(const std::map<std::string, std::string>& options,
                                            QueryRequest& request);

// The selected days as text: the order's caption, the report's heading and one report line
// per day.
std::string QueryText(const QString& reportText, const Selection& selection);

// The report as printed (a dash line appended), its pages as text separated by form feeds.
std::string ReportText(const QString& reportText);
