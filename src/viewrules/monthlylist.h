// SPDX-License-Identifier: GPL-3.0-or-later
// The text of the monthly data list: one fixed-width line per day with sunrise and sunset,
// moonrise and moonset, the majors and the minors; a missing time shows as "XX:XX".
#pragma once

#include <array>
#include <string>
#include <vector>

class Astronomy;

// Headings 0 and 1 for the screen, 2 and 3 for the clipboard and the printer.
extern const std::array<const char*, 4> MonthlyListHeadings;

// One line per day of the month whose first day is at `monthStartJD` (0h), computed with the
// engine at its observer; `ampm` selects the 12-hour layout.
std::vector<std::string> MonthlyListLines(Astronomy& engine, double monthStartJD, int monthDays,
                                          bool ampm);

// Appends one time column and a blank: the text, or for a missing time (a text that begins
// "****" after its lead blanks) "XX:XX" where the time would stand, as wide as the column's
// times so that the columns after it stay in place. PRNTrue: the 12-hour layout's "07:30 A";
// PRNFalse: the 24-hour layout's columns, `width` wide.
void PRNTrue(std::string& line, const std::string& text);
void PRNFalse(std::string& line, const std::string& text, std::size_t width);

// The clipboard's text: the month and year, a blank line, the clipboard headings and the
// lines, each line ended by CR LF.
std::string MonthlyListClipboard(int month, int year, const std::vector<std::string>& lines);

// The printed page's lines: the month and year, blank lines as the printer's line breaks
// leave them, the printer headings and the day lines.
std::vector<std::string> MonthlyListPrinted(int month, int year,
                                            const std::vector<std::string>& lines);
