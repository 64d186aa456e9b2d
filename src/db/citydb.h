// SPDX-License-Identifier: GPL-3.0-or-later
// The city database Encdb.MDB in the program's folder, as the location editor and the
// database editor open it.
#pragma once

#include <QString>
#include <QStringList>

class DataControl;

namespace CityDb {
inline constexpr auto FileName = "Encdb.MDB";
inline constexpr auto Password = "RiverStone";
inline constexpr auto Connect = ";pwd=RiverStone";

// Points the data control at the folder's city database with its connect string.
void Attach(DataControl& data, const QString& folder);
// Every value of the field in the control's records, in their order.
QStringList FieldValues(DataControl& data, const QString& field);
// What to tell the user when the file cannot be read: a missing file in one line.
QString Unreadable(const QString& folder, const QString& reason);
} // namespace CityDb
