// Each test program runs in its own temporary HOME, config, data and runtime folders, so no
// test reads or writes the user's settings or log files.
#pragma once

#include <QString>

namespace testenv {
// Creates the folders and points the environment at them; call before QApplication exists.
void Isolate();
// The temporary root made by Isolate().
QString Root();
// A fresh empty folder below the root.
QString FreshDir(const QString& name);
} // namespace testenv
