// SPDX-License-Identifier: GPL-3.0-or-later
// The place and clock a year file was filled for, kept in the file itself (the one-row table
// QuillmerePlace), so that its times say where and on which clock they hold. Files made before
// the log kept it have no such table and open as before.
#pragma once

#include "db/database.h"

#include <QString>

#include <optional>

class Astronomy;

struct YearPlace {
    QString Name;
    double Latitude = 0.0;  // degrees north
    double Longitude = 0.0; // degrees west
    int TimeZone = 0;       // whole hours west of Greenwich
    QString TzName;         // the zone of the tz database, empty when none
    QString Clock;          // "Local Clock", "Daylight Savings" or "Standard"
};

// The place the engine computes for, under the given name.
YearPlace PlaceOfEngine(const Astronomy& engine, const QString& name);

// Records the place in the year file at path, in place of any recorded before.
DbResult WriteYearPlace(const QString& path, const YearPlace& place);

// The place recorded in the year file; nothing for a file made before places were recorded
// (or one that cannot be read).
std::optional<YearPlace> ReadYearPlace(const QString& path);

// "Alexandria, LA  31.25N 92.42W  America/Chicago, Local Clock".
QString YearPlaceText(const YearPlace& place);
