// SPDX-License-Identifier: GPL-3.0-or-later
// What the log windows keep for the whole run, and what they take from the rest of the
// program when the main window opens them.
#pragma once

#include "logdb/catchunits.h"
#include "model/settings.h"

#include <QString>

#include <cstdint>

class Astronomy;
class MessageService;

struct LogState {
    QString DBPath;          // the year file last selected or created; empty until then
    bool FindRecord = false; // the grid view asks the browser to show FindDBID
    std::int32_t FindDBID = 0;
};

struct LogContext {
    MessageService& Messages;
    LogState& State;
    const Astronomy& Engine; // at the current location; the fill works on a copy
    std::int16_t SouthernHemisphere = 0;
    std::int32_t DaylightBias = DefaultDaylightBias; // minutes
    std::uint32_t MoonColor = DefaultMoonColor;
    std::int16_t CurYear = 2000;           // the year shown in the main window
    QString Folder;                        // the program's folder
    UnitSystem Units = UnitSystem::Metric; // how the catches' measures are shown and typed
    QString PlaceName; // the current location's name, recorded in a year file made here
};
