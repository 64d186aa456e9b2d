// SPDX-License-Identifier: GPL-3.0-or-later
// quillmere-log: the fishing log's year files on the command line, through the same
// operations as the "Database Functions" window. Each command is one entry of a table, so a
// new command is one function and one line.
#pragma once

#include <iosfwd>
#include <string>
#include <vector>

extern const char* const LogUsageText;

// Runs the command the arguments (after the program name) give, writing its output to out
// and a one-line message to err. Returns the exit status: 0 done, 1 the operation failed,
// 2 bad input.
int RunLogCommand(const std::vector<std::string>& args, std::ostream& out, std::ostream& err);
