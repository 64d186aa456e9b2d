#include "model/currentlocation.h"

#include "text/timeunits.h"
#include "text/vbformat.h"

#include <cmath>

void ApplyLocationValues(Settings& s, CurrentLocation& cur, Observer& site)
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
    if (s.TimeFormats == 1 || s.TimeFormats == 0) {
        site.DstOffsetDays = s.TimeFormats == 0 ? MinutesToDays(s.DaylightBias) : 0.0;
        mode = s.TimeFormats == 0 ? "DST" : "STD";
        s.AMPM = "True";
    }
    site.TimeFormats = s.TimeFormats;
    site.AMPM = s.AmPm();

    caption += " TimeZone=" + std::string(site.CurTimeZone >= 0 ? " " : "") +
               std::to_string(site.CurTimeZone) + " " + " Time=" + mode +
               " Hemisphere=" + s.HemiSphere + "ern ";
    cur.LocationCaption = caption;
}

std::string LocationMenuCaption(int n, const std::string& name, bool isDefault)
{
    return "# " + std::to_string(n) + " " + name + (isDefault ? "  [Def]" : "");
}
