// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/currentlocation.h"

#include "text/timeunits.h"
#include "text/vbformat.h"

#include <cmath>

void ApplyLocationValues(Settings& s, CurrentLocation& cur, Observer& site, const ZoneRules& clock)
{
    const Location& loc = s.Locations[std::size_t(s.CurLoc)];

    site.SetPlace(loc.Longitude, loc.Latitude, loc.TimeZone);
    std::string caption =
        " Long=" + VbFormat(std::fabs(loc.Longitude), "##0.#0") + (loc.Longitude < 0 ? " E" : " W");

    const bool south = loc.Latitude < 0;
    s.HemiSphere = south ? "South" : "North";
    cur.SouthernHemisphere = south ? -1 : 0;
    caption += " Lat=" + VbFormat(std::fabs(loc.Latitude), "#0.#0") + (south ? " S" : " N");

    cur.CurLocName = loc.Name;
    caption = cur.CurLocName + " " + caption;

    std::string mode;
    const bool localClock = s.TimeFormats == LocalClockMode;
    site.Clock = localClock ? clock : ZoneRules{};
    // The place's clock decides every day, twilights too.
    site.TwilightsInClockDay = !site.Clock.Empty();
    if (s.TimeFormats == StandardMode || s.TimeFormats == DaylightSavingsMode || localClock) {
        const bool dst = s.TimeFormats == DaylightSavingsMode;
        site.DstOffsetDays = dst ? MinutesToDays(s.DaylightBias) : 0.0;
        mode = dst ? "DST" : site.Clock.Empty() ? "STD" : "LOCAL";
    }
    site.TimeFormats = s.TimeFormats;
    site.AMPM = s.AmPm();

    const std::string zone = site.Clock.Empty() ? std::string(site.CurTimeZone >= 0 ? " " : "") +
                                                      std::to_string(site.CurTimeZone)
                                                : site.Clock.Name;
    caption += " TimeZone=" + zone + " " + " Time=" + mode + " Hemisphere=" + s.HemiSphere + "ern ";
    cur.LocationCaption = caption;
}

std::string LocationMenuCaption(int n, const std::string& name, bool isDefault)
{
    return "# " + std::to_string(n) + " " + name + (isDefault ? "  [Def]" : "");
}
