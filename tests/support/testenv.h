// SPDX-License-Identifier: GPL-3.0-or-later
// Each test program runs in its own temporary HOME, config, data and runtime folders, so no
// test reads or writes the user's settings or log files.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <vector>

namespace testenv {
// Creates the folders and points the environment at them; call before QApplication exists.
void Isolate();
// The temporary root made by Isolate().
QString Root();
// A fresh empty folder below the root.
QString FreshDir(const QString& name);
// The whole content of a file; a test failure when it cannot be read.
QByteArray FileBytes(const QString& path);
// Writes the bytes as the whole content of the file; a test failure when it cannot be written.
void WriteFile(const QString& path, const QByteArray& bytes = {});
// The rows of a reference data file: its lines split at "|", each field trimmed; blank lines
// and lines starting with "#" left out. A test failure when it holds no row.
std::vector<QStringList> DataRows(const QString& path);
} // namespace testenv
