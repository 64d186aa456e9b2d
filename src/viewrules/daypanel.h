// SPDX-License-Identifier: GPL-3.0-or-later
// What the day details beside the month grid show for the selected day: captions and
// colours of the numbered labels, and their tool tips. Plain data, so the main window only
// applies it and tests read it.
#pragma once

#include "astro/dayforecast.h"

#include <cstdint>
#include <map>
#include <string>

struct DayPanel {
    std::map<int, std::string> Captions; // Label(i) -> text
    std::map<int, std::uint32_t> Colors; // Label(i) -> 0x00BBGGRR; absent: left as it was
};

// Half the width of a major and of a minor period, in hours: the windows the tool tips give.
constexpr double MajorHalfHours = 1.0;
constexpr double MinorHalfHours = 0.58;

constexpr std::uint32_t Black = 0x000000;
constexpr std::uint32_t Red = 0x0000FF;
constexpr std::uint32_t Yellow = 0x00FFFF;

// The panel for a forecast; `moonAltitude` is the Moon's altitude at the chosen hour.
DayPanel DoLabels(const DayForecast& f, double moonAltitude, bool ampm);

// The tool tip of Label(i) while the mouse is over it; empty for labels without one.
std::string LabelToolTip(int i, const DayForecast& f, bool ampm);
