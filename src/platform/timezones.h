// SPDX-License-Identifier: GPL-3.0-or-later
// The tz database of the system (its tzdata, through QTimeZone): the zone names it knows and a
// zone's offsets as the plain table the engine reads.
#pragma once

#include "astro/zonerules.h"
#include "model/location.h"

#include <string>
#include <vector>

class QDateTime;

// The UT Julian day of an instant, to the second.
double InstantJulianDay(const QDateTime& t);
// Whether the system knows the zone name ("Europe/Oslo").
bool ZoneKnown(const std::string& name);
// Every zone name the system knows, sorted.
std::vector<std::string> ZoneNames();
// The zone's offsets from the start of fromYear to the end of toYear (UT); empty when the
// zone is not known.
ZoneRules LoadZoneRules(const std::string& name, int fromYear = 1900, int toYear = 2500);
// The clock of a location: its zone's offsets; empty when it names none or one the system
// does not know (the location then keeps its whole-hour zone).
ZoneRules LocationClock(const Location& loc);
// The clock of a zone named on the command line (empty when not known). A whole-hour zone of
// 0 given with a known zone becomes that zone's standard offset in whole hours west.
ZoneRules NamedZoneClock(const std::string& tzName, int& wholeHoursWest);
// Why a zone named on the command line (--tz) is refused: one line naming it; empty when the
// zone is known.
std::string UnknownZoneOption(const std::string& tzName);
// What a user is told once about a location whose zone is not known.
std::string UnknownZoneMessage(const Location& loc);
