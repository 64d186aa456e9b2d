// quillmere-log: the fishing log's year files for scripts and the terminal.
#include "cli/log/logcommands.h"

#include <QCoreApplication>
#include <QGuiApplication>

#include <algorithm>
#include <iostream>
#include <memory>

int main(int argc, char** argv)
{
    const std::vector<std::string> args(argv + 1, argv + argc);
    // The database drivers are plug-ins; a printed report needs the fonts of a GUI
    // application, which runs on the offscreen platform.
    std::unique_ptr<QCoreApplication> app;
    if (std::find(args.begin(), args.end(), "--pdf") != args.end()) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        app = std::make_unique<QGuiApplication>(argc, argv);
    } else {
        app = std::make_unique<QCoreApplication>(argc, argv);
    }
    return RunLogCommand(args, std::cout, std::cerr);
}
