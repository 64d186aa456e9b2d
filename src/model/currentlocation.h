// SPDX-License-Identifier: GPL-3.0-or-later
// The current location: copies the chosen one of the ten into the engine's working values
// and builds the one-line description shown over the status bar.
#pragma once

#include "astro/observer.h"
#include "model/settings.h"

#include <cstdint>
#include <string>

struct CurrentLocation {
    std::string CurLocName;
    std::int16_t SouthernHemisphere = 0; // -1 south of the equator
    std::string LocationCaption;
};

// The computing steps of applying the current location: the engine's working values, the
// hemisphere, the daylight-saving offset (by TimeFormats) and the caption; the engine follows
// the chosen clock (AMPM: 12 or 24 hours). Under
// "Local Clock" the engine follows clock, the offsets of the location's zone; a location
// without a zone (clock empty) keeps its whole-hour zone in standard time.
void ApplyLocationValues(Settings& s, CurrentLocation& cur, Observer& site,
                         const ZoneRules& clock = {});

// "# 1 Alexandria, LA", with "  [Def]" for the default location.
std::string LocationMenuCaption(int n, const std::string& name, bool isDefault);
