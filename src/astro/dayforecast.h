// SPDX-License-Identifier: GPL-3.0-or-later
// What one day's forecast leaves for the windows, lists and the log: sun and moon events,
// the solunar periods (by their centre times) and the Moon at the chosen hour.
#pragma once

#include "astro/riseset.h"

#include <cstdint>
#include <string>

// Where the Sun and the Moon stand at the chosen hour (radians, azimuths from north).
struct SkyAtHour {
    double SunAzimuth = 0.0;
    double MoonAzimuth = 0.0;
    double SunAltitude = 0.0;
    double MoonAltitude = 0.0;
};

struct DayForecast {
    SunEventTable SunEvents;
    std::string SunriseText;
    std::string SunsetText;
    double DayLength = 0.0;

    MoonEventRecord MoonEvents;
    double Major1 = 0.0;
    double Major2 = 0.0;
    double Minor1 = -1.0; // -1 when the day has none
    double Minor2 = -1.0;
    std::string Major1Text; // wrapped in "*" when the day has no transit of its own
    std::string Major2Text;
    std::string Minor1Text; // "*******" when there is none
    std::string Minor2Text;

    double IllumFraction = 0.0;
    double BrightLimbAngle = 0.0;
    std::int16_t Waxing = 0;
    std::int16_t IllumPercent = 0;
    SkyAtHour SkyPosition;
    double MoonParallacticAngle = 0.0;
};
