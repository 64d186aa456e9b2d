// SPDX-License-Identifier: GPL-3.0-or-later
// The application object of the command-line programs, which open no window.
#pragma once

#include <QCoreApplication>

#include <memory>

// Drawing pages (`printing`) needs the fonts of a GUI application, which runs on the offscreen
// platform; everything else needs only the core. Qt's note that XDG_RUNTIME_DIR is not set
// (as under cron or a bare ssh command) is left out of the program's stderr, which scripts
// read; every other message is written as Qt writes it.
std::unique_ptr<QCoreApplication> HeadlessApplication(bool printing, int& argc, char** argv);
