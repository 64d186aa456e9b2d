// quillmere-log: the fishing log's year files for scripts and the terminal.
#include "cli/logcommands.h"

#include <QCoreApplication>

#include <iostream>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv); // the database drivers are plug-ins
    return RunLogCommand(std::vector<std::string>(argv + 1, argv + argc), std::cout, std::cerr);
}
