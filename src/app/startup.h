// The program's start before any window exists: refuse a second copy, learn the computer's
// daylight bias and date order, reset the settings on any command-line argument, write the
// first-start values, load the settings and make the default location current.
#pragma once

#include <QStringList>

struct AppState;
class SingleInstance;

enum class StartOutcome { Run, AlreadyRunning, BadSetting };

StartOutcome StartUp(AppState& app, const QStringList& arguments, SingleInstance& instance);
