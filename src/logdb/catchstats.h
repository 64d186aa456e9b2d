// SPDX-License-Identifier: GPL-3.0-or-later
// Does the forecast predict the catches? Catch per day fished, grouped by the day's rating,
// the moon's phase and age, the weekday, and how far the recorded peak time lay from the
// nearest major or minor period. Plain C++: the records come in, the figures go out.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

// What one log record holds for the statistics, as stored in the year file.
struct CatchDay {
    int Year = 0;
    int Month = 0; // 1..12
    int Day = 0;
    int Rating = 0;  // GraphicType: 4 Best .. 1 Fair, 0 unrated
    int MoonAge = 0; // whole days since the last new moon
    // Clock hours of the day's major and minor periods; a missing minor is left out.
    std::vector<double> PeriodHours;
    std::optional<int> TotalTaken;
    std::string PeakTime; // as entered, "7:00 AM"
    std::string Notes;
};

// A day counts as fished when the angler filled Total Taken, Peak Time or Notes.
bool IsFished(const CatchDay& day);

// Minutes between the recorded peak time and the nearest period, over midnight when that is
// nearer; nothing without a readable peak time or without periods.
std::optional<double> PeakDistanceMinutes(const CatchDay& day);

struct CatchGroup {
    std::string Name;
    int DaysFished = 0;
    long TotalTaken = 0;
    // Fish per day fished; 0 for a group without days.
    double PerDay() const;
};

struct CatchGrouping {
    std::string Title;
    std::vector<CatchGroup> Groups;
};

enum CatchGroupingIndex { ByRating, ByMoonPhase, ByMoonAge, ByWeekday, ByPeakDistance };

struct CatchStatistics {
    CatchGroup All{"All days fished", 0, 0};
    // In the order of CatchGroupingIndex.
    std::array<CatchGrouping, 5> Groupings;
};

// The figures over any number of records (one year or many).
CatchStatistics ComputeCatchStatistics(const std::vector<CatchDay>& days);

// One line in plain words: "On Best days you took 2.4 fish per day fished, on unrated days 0.9".
std::string CatchSummary(const CatchStatistics& stats);

// The figures as tab-separated lines, ready for a spreadsheet: a header, then each grouping's
// title followed by its groups.
std::string CatchTableText(const CatchStatistics& stats);

// "2.4": a rate with one decimal.
std::string RateText(double rate);
