// SPDX-License-Identifier: GPL-3.0-or-later
#include "viewrules/daydetails.h"

#include "astro/astronomy.h"
#include "calendar/calendar.h"
#include "text/vbformat.h"
#include "viewrules/daygraphdata.h"

#include <cstddef>

namespace {

constexpr double RadToDeg = 57.29577951308238;
const char* const NoEvent = "*****";

std::string Degrees(double radians) { return VbFormat(radians * RadToDeg, "##0.0"); }

std::string Pair(const std::string& a, const std::string& b) { return a + "/" + b; }

void SunLines(DetailLines& out, const SunEventTable& s, bool ampm)
{
    const auto clock = [ampm](double h) { return FormatClock(0, h, ampm); };
    out[5] = Pair(clock(s.Civil.RiseTime), clock(s.Civil.SetTime));
    out[6] = Pair(clock(s.Nautical.RiseTime), clock(s.Nautical.SetTime));
    out[7] = Pair(clock(s.Astronomical.RiseTime), clock(s.Astronomical.SetTime));
    out[8] = clock(s.Horizon.TransitTime);
    out[17] = Pair(clock(s.Horizon.RiseTime), clock(s.Horizon.SetTime));
    out[14] = Pair(Degrees(s.Horizon.RiseAzimuth), Degrees(s.Horizon.SetAzimuth));
    out[13] = Degrees(s.Horizon.TransitAltitude);
}

// An event of the Moon's day, or "*****" when it does not happen on this day.
std::string MoonValue(EventFlag flag, const std::string& value)
{
    return flag == EventFlag::InDay ? value : NoEvent;
}

// transitAltitude in degrees.
void MoonLines(DetailLines& out, const DayForecast& f, double transitAltitude, bool ampm)
{
    const MoonEventRecord& m = f.MoonEvents;
    out[15] = Pair(MoonValue(m.RiseFlag, FormatClock(0, m.RiseTime, ampm)),
                   MoonValue(m.SetFlag, FormatClock(0, m.SetTime, ampm)));
    out[18] = f.Major1Text;
    out[20] = MoonValue(m.TransitFlag, VbFormat(transitAltitude, "##0.0"));
    out[22] = Pair(MoonValue(m.RiseFlag, Degrees(m.RiseAzimuth)),
                   MoonValue(m.SetFlag, Degrees(m.SetAzimuth)));
    out[24] = std::to_string(f.IllumPercent) + "%";
}

// The day's events, each with its local time of day.
std::vector<std::string> EventLines(const DayMarks& d, bool ampm)
{
    const auto EventTime = [ampm](double jd) { return EventClock(jd, 0, ampm); };
    std::vector<std::string> lines;
    if (d.Phase >= 1 && d.Phase <= 4)
        lines.push_back(std::string(PhaseNames[std::size_t(d.Phase)]) + " " + EventTime(d.PhaseJD));
    if (d.Perigee == 1 || d.Perigee == 2)
        lines.push_back(std::string(d.Perigee == 1 ? "Moon at Perigee " : "Moon at Apogee ") +
                        EventTime(d.PerigeeJD));
    if (d.Declination == 1 || d.Declination == 2)
        lines.push_back(
            std::string(d.Declination == 1 ? "Max North Declination" : "Max South Declination") +
            " " + EventTime(d.DeclinationJD));
    if (d.Season >= 1 && d.Season <= 4)
        lines.push_back(std::string(SeasonNames[std::size_t(d.Season)]) + EventTime(d.SeasonJD));
    if (d.EarthApsis == 1 || d.EarthApsis == 2)
        lines.push_back(std::string(EarthApsisNames[std::size_t(d.EarthApsis - 1)]) + " " +
                        EventTime(d.EarthApsisJD));
    return lines;
}

} // namespace

DetailLines DoDetails(Astronomy& engine, const Calendar& cal, double jd, bool ampm)
{
    DetailLines out;
    engine.SunEventsForDay(jd);
    SunLines(out, engine.Forecast.SunEvents, ampm);
    const auto doy = std::size_t(jd - cal.YearStartJD) + 1;
    const DayMarks& day = cal.YearDays.at(doy);
    out[9] = std::to_string(day.MoonAge);
    engine.ComputeDay(jd);
    // The Moon's altitude at the instant of its transit: its declination moves by degrees in
    // a day, so the one at the start of the day will not do.
    const double transitAltitude =
        GetPicData(engine, jd + engine.Forecast.MoonEvents.TransitTime / 24.0).MoonElevation;
    MoonLines(out, engine.Forecast, transitAltitude, ampm);
    const std::vector<std::string> events = EventLines(day, ampm);
    for (int i = 0; i < EventLabelCount; ++i)
        out[FirstEventLabel + i] = i < int(events.size()) ? events[std::size_t(i)] : "";
    return out;
}

std::string DetailsCaption(int year, int month, int day, bool monthFirst, char separator)
{
    if (monthFirst)
        return "Details for  " + std::to_string(month) + "/" + std::to_string(day) + "/" +
               std::to_string(year);
    const std::string sep(1, separator);
    return "Details for " + std::to_string(day) + sep + std::to_string(month) + sep +
           std::to_string(year);
}
