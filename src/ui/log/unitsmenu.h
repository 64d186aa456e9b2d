// SPDX-License-Identifier: GPL-3.0-or-later
// Options > Units: metric or imperial lengths, weights and temperatures for the catches,
// chosen once and kept with the settings.
#pragma once

#include "logdb/catchunits.h"

class QMenu;

// Adds the "Units" submenu to the options menu; a choice is written to `imperial` at once.
QMenu* AddUnitsMenu(QMenu* options, bool& imperial);

inline UnitSystem UnitsOf(bool imperial)
{
    return imperial ? UnitSystem::Imperial : UnitSystem::Metric;
}
