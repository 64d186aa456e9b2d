// SPDX-License-Identifier: GPL-3.0-or-later
// The settings the program keeps between runs, and what start-up learns from the computer.
// Read once at start, written once when the main window closes.
#pragma once

#include "model/location.h"
#include "text/timeunits.h"

#include <cstdint>
#include <string>

constexpr std::int32_t DefaultMoonColor = 0xFFFFFF; // white, as 0x00BBGGRR
// The daylight bias where the computer's zone has no daylight saving: the "Daylight Savings"
// choice still means one hour.
constexpr std::int32_t DefaultDaylightBias = -MinutesPerHour;

struct Settings {
    std::string AMPM = "True";
    std::string DefLoc = "1";
    std::int32_t MoonColor = DefaultMoonColor;
    std::string HemiSphere = "North";
    std::int16_t Graphic = 0;
    bool MouseClick = true;
    std::string ParallacticAngle = "True";
    std::int16_t TimeFormats = 1;
    std::string FormTop = "300";
    std::int16_t FormLeft = 300;
    LocationTable Locations;
    bool ImperialUnits = false; // the catches' measures in in, lb, °F rather than cm, kg, °C

    std::int16_t CurLoc = 1;
    std::int32_t DaylightBias = DefaultDaylightBias; // minutes, from the computer's time zone
    bool MonthFirstDates = true;
    char DateSeparator = '/';
    double SelectedJD = 0.0; // Julian day at 0h of the selected day

    // The text settings read as booleans where the program tests them.
    bool AmPm() const;
    bool ParallacticOn() const;
    // DefLoc as a location number; 1 when it does not name one of the ten.
    std::int16_t DefaultLocation() const;
};

// Text-to-value conversions with Visual Basic's rules (CInt rounds half to even, CBool takes
// "True"/"False" or a number). They throw SettingError naming the key on bad text.
struct SettingError {
    std::string Key;
    std::string Text;
    std::string Expected;
};
