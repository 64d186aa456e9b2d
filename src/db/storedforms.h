// SPDX-License-Identifier: GPL-3.0-or-later
// Stored forms of the log's date and time values. Dates are kept as "YYYY-MM-DD" and times of
// day as "HH:MM:SS" so that ordering and between work on the values; the texts the program
// writes and shows ("mm/dd/yyyy", "07:05 PM", "19:05") are converted at the edges.
#pragma once

#include <optional>
#include <string>
#include <string_view>

// "03/10/2024", "3/10/2024" or "2024-03-10" -> "2024-03-10".
std::optional<std::string> StoredDate(std::string_view text);

// "07:05 PM", "7:05 pm", "7:05:30 PM", "19:05", "19:05:30" -> "19:05:00" / "19:05:30".
std::optional<std::string> StoredTime(std::string_view text);

// A date, a time, or a date followed by a time -> "YYYY-MM-DD", "HH:MM:SS" or both joined by
// one blank. This is the form of a #...# literal in the program's SQL.
std::optional<std::string> StoredDateTime(std::string_view text);

// A stored date, time or both as a date serial (days since 30 December 1899 0h; a time alone
// is a fraction of a day), the value the VB-style Format patterns take.
std::optional<double> StoredSerial(std::string_view stored);

// A stored value shown with a Format pattern: FormatStored("19:05:00", "hh:mm AMPM") is
// "07:05 PM", FormatStored("2024-03-10", "mm/dd/yyyy") is "03/10/2024".
std::optional<std::string> FormatStored(std::string_view stored, std::string_view pattern);
