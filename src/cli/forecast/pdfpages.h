// SPDX-License-Identifier: GPL-3.0-or-later
// The printed pages of the command line: the monthly list, the calendar page and the month at
// a glance, drawn by the windows' own page drawings into a PDF file, with no window opened.
#pragma once

#include "cli/common/arguments.h"
#include "cli/common/forecastrun.h"

#include <string>

// Writes the page(s) of the request into request.Pdf; returns an empty text, or one line
// that says why the file was not written.
std::string WritePdfPages(const ForecastRequest& request, const ForecastPlace& place,
                          const std::string& placeName);
