// SPDX-License-Identifier: GPL-3.0-or-later
// What the day detail window shows for one day: its value labels by index (the captions
// beside them are the window's own), and where the window goes beside the month grid.
#pragma once

#include <map>
#include <string>

class Astronomy;
class Calendar;

// Value labels of the day detail window: Label(i) -> text.
using DetailLines = std::map<int, std::string>;

// The value labels that hold the day's events, one event per label, in this order.
constexpr int FirstEventLabel = 26;
constexpr int EventLabelCount = 5;

// The day at 0h jd: the Sun's twilights, rise, set, transit and azimuths, the Moon's rise,
// set, transit, azimuths, age and illumination, then the day's events from the year day table
// (which must hold jd's year). Recomputes the engine's forecast for jd.
DetailLines DoDetails(Astronomy& engine, const Calendar& cal, double jd, bool ampm);

// "Details for " and the date, month first (" 3/5/2024") or day first with the separator.
std::string DetailsCaption(int year, int month, int day, bool monthFirst, char separator);
