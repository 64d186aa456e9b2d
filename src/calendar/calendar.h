// SPDX-License-Identifier: GPL-3.0-or-later
// The calendar module: the shown month and year, the day-of-year tables, the year day table
// with the year's events, ratings and holidays, and what each of the 37 grid cells shows.
#pragma once

#include "astro/zonerules.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

class Astronomy;

// The years the program covers; stepping a month past either end wraps to the other.
constexpr int FirstYear = 1900, LastYear = 2500;
constexpr bool ValidYear(int year) { return year >= FirstYear && year <= LastYear; }

// One day of the year day table.
struct DayMarks {
    std::string Text;             // holiday and event captions, the latest in front
    bool Holiday = false;         // the day's number is drawn in red
    std::int16_t Phase = 0;       // 1 new, 2 first quarter, 3 full, 4 last quarter
    std::int16_t Perigee = 0;     // 1 perigee, 2 apogee, -1 the day before or after a perigee
    std::int16_t Declination = 0; // 1 greatest north, 2 greatest south
    std::int16_t MoonAge = 0;     // whole days since the last new moon
    // The events' local clock instants, to the minute.
    double PhaseJD = 0.0, PerigeeJD = 0.0, DeclinationJD = 0.0, SeasonJD = 0.0;
    std::int16_t Season = 0;     // 1 March equinox .. 4 December solstice
    std::int16_t EarthApsis = 0; // 1 the Earth at perihelion, 2 at aphelion
    double EarthApsisJD = 0.0;
    std::int16_t Rating = 0; // 0..4, 4 best
};

// The cells of the month grid: a 31-day month that starts on a Saturday fills 37.
constexpr int MonthGridCells = 37;

// What one cell of the month grid shows.
struct DayCell {
    enum class Kind { PreviousMonth, ThisMonth, NextMonth };
    Kind Of = Kind::ThisMonth;
    int Number = 0;               // day of its month
    std::uint32_t Background = 0; // 0x00BBGGRR
    std::uint32_t TextColor = 0;
    bool Enabled = true;
    int PhasePicture = 0;  // 20..23, 0 for none
    int RatingPicture = 0; // 1..4, 0 for none
    int Marks = 0;         // red "^^" marks
    int DayOfYear = 0;     // index into YearDays (this month only)
};

extern const std::array<const char*, 8> DayNames;    // 1..7, Sunday first
extern const std::array<const char*, 13> MonthNames; // 1..12
extern const std::array<const char*, 5> PhaseNames;  // 1..4
extern const std::array<const char*, 5> SeasonNames; // 1..4, padded to 16
// The event captions of the year day table, by code - 1.
extern const std::array<const char*, 2> PerigeeCaptions;
extern const std::array<const char*, 4> SeasonCaptions;
extern const std::array<const char*, 2> DeclinationCaptions;
// The Earth's perihelion and aphelion as the event lists name them.
extern const std::array<const char*, 2> EarthApsisNames;

class Calendar {
public:
    std::int16_t CurMonth = 1;
    std::int16_t CurYear = 2000;
    std::int16_t LeapFlag = 0;
    std::int16_t MonthDays = 31;
    std::int16_t PrevMonthDays = 31;
    std::int16_t FirstWeekday = 0;                // 0 Sunday .. 6 Saturday
    std::int16_t YearSlots = 366;                 // days of the year + 1
    std::array<std::int16_t, 13> MonthStartDoy{}; // 1..12
    std::array<double, 13> MonthStartJD{};        // 1..12, Julian day at 0h
    double YearStartJD = 0.0;
    double YearEndJD = 0.0;
    std::int16_t SelCell = 0;
    std::int16_t TodayCell = 0;
    std::vector<DayMarks> YearDays; // 0..YearSlots + 1, indexed by day of year
    std::int16_t DstStartDay = 0, DstEndDay = 0;
    double DstStartJD = 0.0, DstEndJD = 0.0;
    int YearTableBuilds = 0; // how often the year's events were built: the windows' speed
                             // is measured by it

    void LeapYear();
    // Moves CurMonth one month on (+1) or back (-1); true when that changes CurYear.
    bool StepMonth(int step);
    static std::int16_t DaysInMonth(int month); // February 28
    // Recomputes the tables for CurMonth/CurYear, then the year's events (with the engine at
    // its observer), the ratings for the hemisphere (-1 south) and the holidays, unless they
    // were last built for the same year, hemisphere, place and clock.
    void SetYearTables(Astronomy& engine, std::int16_t southernHemisphere);
    // Sets PrevMonthDays from the month before; the tables stay as they are.
    void ComputePrevMonthDays();
    // The 37 cells of the shown month; frames today when the shown month is the clock's,
    // else day 1 (TodayCell, SelCell).
    std::array<DayCell, MonthGridCells> DrawMonth(Astronomy& engine,
                                                  std::int16_t southernHemisphere, int todayYear,
                                                  int todayMonth, int todayDay);

private:
    // What the year's events and holidays were built for.
    struct YearKey {
        int Year = 0, Southern = 0;
        double Longitude = 0, Latitude = 0;
        int Zone = 0;
        double ZoneDays = 0, DstOffsetDays = 0;
        bool TwilightsInClockDay = false;
        int TimeFormats = 0;
        bool AmPm = true;
        std::string Clock;
        bool operator==(const YearKey&) const = default;
    };
    YearKey KeyOf(const Astronomy& engine, std::int16_t southernHemisphere) const;
    YearKey BuiltFor;
};

bool IsLeapYear(int year);
// 1 = Sunday .. 7 = Saturday.
int WeekdayOf(int year, int month, int day);
// The month's day numbers for the year calendar, in week rows of a word-wrapped label.
std::string MonthDaysText(int firstWeekday, int monthDays);
std::string MonthAbbrev(int month);
// "6:05 PM" -> "6:05 P"; a text beginning "****" is returned unchanged.
std::string ShortClock(const std::string& s);

// Day of year (1-based) of a date.
int DayOfYearOf(int year, int month, int day);

// One event of the year: its kind, its code in the year day table (Phase 1..4, Perigee 1..2,
// Declination 1..2, Season 1..4, EarthApsis 1..2) and its local clock instant (EventMinute,
// EventDayJD and EventClock give the minute, the day and the text every view shows).
struct YearEvent {
    enum class Kind { Phase, Apsis, Declination, Season, EarthApsis };
    Kind Of = Kind::Phase;
    std::int16_t Code = 0;
    double LocalJD = 0.0;
};

// The events whose local day lies from firstDayJD up to, not with, endDayJD (Julian days at 0h
// of local days), in time order, for the engine's observer.
std::vector<YearEvent> YearEventsBetween(Astronomy& engine, double firstDayJD, double endDayJD);

// The year's events into YearDays, each on the local day it falls on (the instants to the
// minute, as the views show them), then the ratings.
void SetYearEvents(Calendar& cal, Astronomy& engine, std::int16_t southernHemisphere);
// Rating and moon age of every day from the phases, perigees and declinations; southern
// hemisphere -1, northern 0.
void SetDayRatings(Calendar& cal, std::int16_t southernHemisphere);
// Holiday captions and flags, and the daylight-saving days of CurYear: by the calendar's own
// rule, or where a place's clock is given, the days its offset goes up and down (none when
// it does not change in the year).
void SetHolidays(Calendar& cal, const ZoneRules& clock = {});
