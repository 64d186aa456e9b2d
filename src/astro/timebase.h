// SPDX-License-Identifier: GPL-3.0-or-later
// Time scales shared by the whole engine: Julian day at 0h, centuries and millennia since
// J2000.0, sidereal time (Meeus ch. 12), Delta-T, range reduction and the clock texts.
#pragma once

#include "text/timeunits.h"

#include <array>
#include <cstdint>
#include <string>

constexpr double J2000 = 2451545.0;
// JD at 0h of 30 December 1899, the origin of the platform's date serial numbers.
constexpr double SerialEpochJD = 2415018.5;
constexpr double Pi = 3.14159265358979323846;
constexpr double TwoPi = 2.0 * Pi;
constexpr double DegToRad = Pi / 180.0;

// Delta-T in tenths of a second for the years 1620, 1622, ..., 2000.
extern const std::array<std::int16_t, 191> DeltaTTable;

double CenturiesSinceJ2000(double jd);
double MillenniaSinceJ2000(double jd);
double DeltaTSeconds(double jd);
double WrapInto(double x, double m);
double WrapSigned(double x);

// Date and time of a Julian day: "mm/dd/yyyy hh:nn:ss" month first, else "dd/mm/yyyy hh:nn:ss".
std::string JdToText(double jd, bool monthFirstDates);

// Clock text of a decimal hour. Mode 0 ordinary, 1 with seconds, 3 always 24-hour. Minutes
// are truncated, seconds rounded.
std::string FormatClock(int mode, double hours, bool ampm);

// An event of the year (a phase, an apsis, a season...) as every window, list and page shows it:
// its local clock instant to the nearest minute, the local day that minute falls on (Julian day
// at 0h) and its clock text (FormatClock's modes).
double EventMinute(double localJD);
double EventDayJD(double localJD);
std::string EventClock(double localJD, int mode, bool ampm);

// Civil date of a Julian day (proleptic Gregorian from 1582 on, as Meeus ch. 7).
struct CivilDate {
    int Year;
    int Month;
    int Day;
};
CivilDate JdToCivil(double jd);
double CivilToJd(int year, int month, double day);
