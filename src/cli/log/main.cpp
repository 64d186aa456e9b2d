// SPDX-License-Identifier: GPL-3.0-or-later
// quillmere-log: the fishing log's year files for scripts and the terminal.
#include "cli/log/logcommands.h"
#include "platform/headlessapp.h"

#include <algorithm>
#include <iostream>

int main(int argc, char** argv)
{
    const std::vector<std::string> args(argv + 1, argv + argc);
    // The database drivers are plug-ins, so even the plain commands need an application.
    const bool printing = std::find(args.begin(), args.end(), "--pdf") != args.end();
    const auto app = HeadlessApplication(printing, argc, argv);
    return RunLogCommand(args, std::cout, std::cerr);
}
