// SPDX-License-Identifier: GPL-3.0-or-later
// The numbers of the day graph, without any drawing: the 24-hour time line's bands, period
// bars, moon marks and event texts in time-line units (7000 to the day), the part of the day
// under the pointer, and where the Sun and the Moon stand at an instant. The window only
// draws what these functions give it.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

class Astronomy;
struct DayForecast;
struct DayMarks;

constexpr double TimeLineWidth = 7000.0; // units for 24 hours
constexpr double PeriodBarWidth = 150.0;
// The pointer names the part of the day while it is at most this far below the line's top
// (twips).
constexpr double DayPartTipDepth = 1305.0;

// A stretch of the line in one colour (0x00BBGGRR). Twilight bands carry their name and the
// place on the line of the edge their tool tip names (the dawn in the morning, the dusk in the
// evening).
struct GraphBand {
    double X0 = 0.0, X1 = 0.0;
    std::uint32_t Color = 0;
    std::string Name; // " Astronomical Twilight ", " Nautical Twilight ", " Civil Twilight "
    double EdgeX = 0.0;
};

// A period bar or a moon mark, centred at X.
struct GraphMark {
    double X = 0.0;
    std::uint32_t Color = 0;
    std::string Name; // "Major", "Minor", "Rise", "Transit", "Set"
};

struct DayGraphSeries {
    std::vector<GraphBand> Daylight;  // between sunrise and sunset
    std::vector<GraphBand> Twilights; // the six bands, as far as the day has them
    std::vector<GraphMark> Bars;      // majors red, minors light green
    std::vector<GraphMark> MoonMarks; // white
    std::vector<double> HourTicks;    // 1..23 h
    double NoonX = TimeLineWidth / 2.0;
    std::vector<std::string> EventTexts; // "Perigee 03:12 PM", "Max North 10:00 AM"
    std::vector<double> EventX;          // where on the line each text's time lies
    double SunriseX = 0.0, SunsetX = 0.0;
};

// The Sun's lowest and highest altitude of the day (radians), which decide which twilights
// the day has at all.
struct SunAltitudeRange {
    double Lowest = 0.0, Highest = 0.0;
};
SunAltitudeRange SunAltitudesOfDay(Astronomy& engine, double jd);

// The series of one day from its forecast and its year day record.
DayGraphSeries DrawTimes(const DayForecast& f, const DayMarks& day, SunAltitudeRange range);

// A place on the line to clock hours (+ 15/1440 h, as the tool tips read it) and a clock place
// to the line; the bias of the line is 0 hours.
double AdjBiasBack(double x);
double AdjForBias(double x);

// The tool tip of the line at x: the part of the day there.
std::string DayPartTip(const DayGraphSeries& s, double x, bool ampm);

// Where the Sun and the Moon stand at a local clock instant (Julian day with fraction).
struct SkyReadout {
    double SunAzimuth = 0.0, SunElevation = 0.0; // degrees
    double MoonAzimuth = 0.0, MoonElevation = 0.0;
};
SkyReadout GetPicData(Astronomy& engine, double jd);
