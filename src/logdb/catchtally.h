// SPDX-License-Identifier: GPL-3.0-or-later
// When, what and where the catches came: the catches of one year or many counted by species,
// by how their time lay against the day's solunar periods and the sun, by clock hour, by spot
// and by water temperature. Plain C++: the catches and their days come in, the counts go out.
#pragma once

#include "viewrules/daypanel.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

// The periods' half widths are the day panel's (MajorHalfHours, MinorHalfHours).
// "Within an hour of sunrise or sunset".
inline constexpr double SunEventHalfHours = 1.0;
// Water temperature bands are this many degrees Celsius wide, from 0 °C.
inline constexpr double WaterBandDegrees = 5.0;

// One catch with what its day's record says, as the statistics need it.
struct CatchFact {
    std::string Species;
    std::string Spot;
    int Count = 1;
    bool Released = false;
    std::optional<double> Hour;      // clock hours of the catch; nothing when not known
    std::optional<double> WaterTemp; // °C
    // The day's period centres and sun events in clock hours; a missing one is left out.
    std::vector<double> Majors;
    std::vector<double> Minors;
    std::optional<double> SunRise;
    std::optional<double> SunSet;
};

// Where a catch's time lay, first match wins: in a major period, in a minor one, within an
// hour of sunrise or sunset, at another time; catches without a time are counted apart.
enum class CatchPeriod { Major, Minor, SunEvent, Other, Untimed };
inline constexpr int CatchPeriodCount = 5;
CatchPeriod PeriodOf(const CatchFact& c);

struct CatchTally {
    std::string Name;  // "Pike", "In a major period", "06:00", "10 to 15 °C", "(no spot)"
    int Catches = 0;   // entries
    long Fish = 0;     // sum of their counts
    long Released = 0; // fish released
    std::optional<double> BandLow; // water bands: the band's lowest °C, for the windows' units
};

struct CatchBreakdown {
    CatchTally All{"All catches"};
    std::vector<CatchTally> BySpecies;                 // most fish first, then by name
    std::array<CatchTally, CatchPeriodCount> ByPeriod; // in CatchPeriod order
    std::array<CatchTally, 24> ByHour;                 // "00:00" .. "23:00"
    std::vector<CatchTally> BySpot;                    // most fish first, then by name
    std::vector<CatchTally> ByWaterTemp; // bands from coldest; "(no temperature)" last
};

CatchBreakdown ComputeCatchBreakdown(const std::vector<CatchFact>& catches);

// The breakdown as tab-separated lines, ready for a spreadsheet and the command line: each
// grouping's title, then its rows "name<TAB>catches<TAB>fish<TAB>released".
std::string BreakdownText(const CatchBreakdown& breakdown);
