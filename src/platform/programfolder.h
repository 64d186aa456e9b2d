// SPDX-License-Identifier: GPL-3.0-or-later
// The program's folder: the template Default.mdb, the city database Encdb.MDB, the year log
// files and the help. $QUILLMERE_HOME when set, else ~/.local/share/Quillmere. On first use
// it is created and seeded with the files that ship with the program.
#pragma once

#include <QString>

namespace ProgramFolder {
// The folder, created and seeded when missing; empty when it cannot be created.
QString Path();
// Full path of a file in the folder.
QString File(const QString& name);
// Where the shipped files come from: $QUILLMERE_DATA, else where they are installed beside
// the executable (../share/quillmere), else the source tree's data/ folder.
QString ShippedDataFolder();
} // namespace ProgramFolder
