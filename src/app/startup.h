// SPDX-License-Identifier: GPL-3.0-or-later
// The program's start before any window exists: read the command line, refuse a second copy,
// learn the computer's daylight bias and date order, reset the settings when asked to, write
// the first-start values, load the settings and make the default location current.
#pragma once

#include <QStringList>

#include <ostream>

struct AppState;
class SingleInstance;

// What the command line asks: nothing (start), --reset, --help, --version, or something the
// program does not take (Argument names it). Qt's own options are read by Qt before this.
struct StartRequest {
    enum class Kind { Run, Reset, Help, Version, Unknown };
    Kind What = Kind::Run;
    QString Argument;
};
StartRequest ReadStartArguments(const QStringList& arguments);

// Answers --help and --version on out, and an argument the program does not take with one
// line on err; the exit status (0, or 2 for a wrong argument).
int AnswerStartRequest(const StartRequest& request, std::ostream& out, std::ostream& err);

enum class StartOutcome { Run, AlreadyRunning, BadSetting };

// `reset` (--reset) puts the defaults in place of the stored settings, which are kept
// beside them as Quillmere.ini.bak.
StartOutcome StartUp(AppState& app, bool reset, SingleInstance& instance);

// QUILLMERE_PALETTE=dark: the Fusion style with a dark palette, whatever the desktop's theme
// (to see and check the windows on a dark desktop).
void ApplyRequestedPalette();

class QWidget;
// Logs "first paint" (category quillmere.startup, info: off unless QT_LOGGING_RULES turns it
// on) when the window is first painted, so that the time from start to a window on the screen
// can be measured from outside.
void ReportFirstPaint(QWidget& window);
