// SPDX-License-Identifier: GPL-3.0-or-later
// The location editor's rules without widgets: the digit texts of its boxes, degrees split
// into whole degrees and hundredths and joined again, the time-zone list, and the city
// database editor's capitalisation of a second word.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

// Three digits: 7 -> "007", 80 -> "080", 122 -> "122".
std::string Pad(int n);
// Two digits: 5 -> "05", 34 -> "34".
std::string PadFrac(int n);

struct DegreeParts {
    int Whole = 0;      // whole degrees of the absolute value
    int Hundredths = 0; // 0..99, nearest hundredth (half to even)
};

// |value| as whole degrees and hundredths: -0.5 -> 0 and 50, 80.2 -> 80 and 20. A fraction that
// rounds up to a whole degree carries into it (0.996 -> 1 and 0).
DegreeParts SplitDegrees(double value);
// whole + hundredths/100, negated for east longitudes and south latitudes.
double JoinDegrees(int whole, int hundredths, bool negative);

struct TimeZoneEntry {
    std::string Text;       // the offset of local time from universal time: "+1", "-5  (Eastern)"
    std::int16_t Value = 0; // hours west of Greenwich: the negated offset
};

// The 25 entries of the time-zone list: "+12" .. "+1", " 0  (UTC)", "-1" .. "-12". The entry
// of zone z is at position 12 + z.
const std::vector<TimeZoneEntry>& TimeZoneEntries();
constexpr int TimeZoneListPosition(int zone) { return 12 + zone; }
inline constexpr int MostLongitude = 180; // degrees either way of Greenwich
inline constexpr int MostLatitude = 90;
// A name longer than this does not fit the location menus (the longest city the city list
// gives, with its state, has 64 characters).
inline constexpr int MaxLocationNameLength = 80;
// A stored name as the menus may show it: cut to MaxLocationNameLength characters (of UTF-8
// text, never inside one) without the blanks the cut leaves at its end; `fallback` when
// nothing but blanks is left.
std::string BoundedLocationName(const std::string& name, const std::string& fallback);
inline constexpr int LowestZone = -12; // twelve hours east of Greenwich
inline constexpr int HighestZone = 12; // twelve hours west
constexpr bool IsListedTimeZone(int zone) { return zone >= LowestZone && zone <= HighestZone; }

// The character after the first blank in upper case ("new york" -> "new York"); a text
// without a blank is returned as it is.
std::string ToLowerCase(const std::string& text);
