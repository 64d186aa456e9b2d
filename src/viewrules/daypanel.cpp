// SPDX-License-Identifier: GPL-3.0-or-later
#include "viewrules/daypanel.h"

#include "astro/timebase.h"

#include <array>
#include <cmath>

namespace {
const std::string NoMinor = "*******";
const std::string NoEvent = "*****";

// A period within an hour of sunrise, the Sun's transit or sunset is highlighted.
std::uint32_t PeriodColor(double period, const SunEventTable& sun)
{
    for (double event : {sun.Horizon.RiseTime, sun.Horizon.TransitTime, sun.Horizon.SetTime})
        if (std::fabs(period - event) <= 1.0)
            return Yellow;
    return Black;
}

std::string DayLengthText(double dayLength)
{
    const std::string t = FormatClock(3, dayLength, false);
    return dayLength > 0 ? t.substr(0, 8) : t.substr(1, 8);
}

std::string Window(double centre, double halfWidth, bool ampm)
{
    return " " + FormatClock(0, WrapInto(centre - halfWidth, 24.0), ampm) + " to " +
           FormatClock(0, WrapInto(centre + halfWidth, 24.0), ampm) + " ";
}

// One line of the moon box: "Rise" or "Set" and its time, "*****" for none. Near the poles the
// Moon can graze the horizon and rise (or set) again before midnight: the second time follows
// after a slash, "00:21 / 23:48".
struct MoonLine {
    std::string Name, Time, Later;
    std::string Caption() const { return Later.empty() ? Time : Time + " / " + Later; }
};

MoonLine Line(const char* name, double time, double later, EventFlag laterFlag, bool ampm)
{
    return {name, FormatClock(0, time, ampm),
            laterFlag == EventFlag::InDay ? FormatClock(0, later, ampm) : ""};
}

// The moon box's two lines in the order the day has them. A day without a moonrise shows the
// set first with its time and the rise with "*****"; one without a moonset the set's "*****"
// first.
std::array<MoonLine, 2> MoonLines(const MoonEventRecord& m, bool ampm)
{
    const MoonLine rise = Line("Rise", m.RiseTime, m.LaterRiseTime, m.LaterRiseFlag, ampm);
    const MoonLine set = Line("Set", m.SetTime, m.LaterSetTime, m.LaterSetFlag, ampm);
    if (m.RiseFlag == EventFlag::OtherDay)
        return {set, MoonLine{"Rise", NoEvent, {}}};
    if (m.SetFlag == EventFlag::OtherDay)
        return {MoonLine{"Set", NoEvent, {}}, rise};
    if (m.RiseTime > m.SetTime)
        return {set, rise};
    return {rise, set};
}
} // namespace

DayPanel DoLabels(const DayForecast& f, double moonAltitude, bool ampm)
{
    DayPanel p;
    p.Captions[7] = DayLengthText(f.DayLength);
    // Under the midnight sun or the polar night the day has no sunrise or sunset to show.
    const RiseTransitSet& sun = f.SunEvents.Horizon;
    p.Captions[14] = sun.RiseFlag == EventFlag::InDay ? f.SunriseText : NoEvent;
    p.Captions[16] = sun.SetFlag == EventFlag::InDay ? f.SunsetText : NoEvent;
    const bool moonUp = moonAltitude >= 0;
    p.Captions[32] = moonUp ? "Moon is Up" : "Moon has Set";
    p.Colors[32] = moonUp ? Red : Black;

    p.Colors[0] = PeriodColor(f.Major1, f.SunEvents);
    p.Colors[2] = PeriodColor(f.Major2, f.SunEvents);
    if (f.Minor1Text != NoMinor)
        p.Colors[4] = PeriodColor(f.Minor1, f.SunEvents);
    if (f.Minor2Text != NoMinor)
        p.Colors[5] = PeriodColor(f.Minor2, f.SunEvents);
    p.Captions[0] = f.Major1Text;
    p.Captions[2] = f.Major2Text;
    p.Captions[4] = f.Minor1Text;
    p.Captions[5] = f.Minor2Text;

    const std::array<MoonLine, 2> moon = MoonLines(f.MoonEvents, ampm);
    p.Captions[18] = moon[0].Name;
    p.Captions[19] = moon[0].Caption();
    p.Captions[21] = moon[1].Name;
    p.Captions[22] = moon[1].Caption();
    return p;
}

std::string LabelToolTip(int i, const DayForecast& f, bool ampm)
{
    const SunEventTable& s = f.SunEvents;
    auto clock = [ampm](double h) { return FormatClock(0, h, ampm); };
    switch (i) {
    case 0:
        return Window(f.Major1, MajorHalfHours, ampm);
    case 2:
        return Window(f.Major2, MajorHalfHours, ampm);
    case 4:
        return f.Minor1Text.rfind("**", 0) == 0 ? " ****** "
                                                : Window(f.Minor1, MinorHalfHours, ampm);
    case 5:
        return f.Minor2Text.rfind("**", 0) == 0 ? " ****** "
                                                : Window(f.Minor2, MinorHalfHours, ampm);
    case 7:
        return " Length of day, Sunrise to Sunset ";
    case 14:
        return " Transit=" + clock(s.Horizon.TransitTime) +
               " Twilight  Civil=" + clock(s.Civil.RiseTime) +
               " Nautical=" + clock(s.Nautical.RiseTime) +
               " Astronomical=" + clock(s.Astronomical.RiseTime) + " ";
    case 16:
        return " Twilight  Civil=" + clock(s.Civil.SetTime) +
               " Nautical=" + clock(s.Nautical.SetTime) +
               " Astronomical=" + clock(s.Astronomical.SetTime) + " ";
    case 19:
    case 22: {
        const MoonLine line = MoonLines(f.MoonEvents, ampm)[i == 19 ? 0 : 1];
        return line.Later.empty() ? std::string()
                                  : " Moon" + std::string(line.Name == "Rise" ? "rise " : "set ") +
                                        line.Time + ", and again " + line.Later + " ";
    }
    default:
        return {};
    }
}
