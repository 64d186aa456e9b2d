#include "viewrules/daypanel.h"

#include "astro/timebase.h"

#include <cmath>

namespace {
const std::string NoMinor = "*******";

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
} // namespace

DayPanel DoLabels(const DayForecast& f, double moonAltitude, bool ampm)
{
    DayPanel p;
    p.Captions[7] = DayLengthText(f.DayLength);
    p.Captions[14] = f.SunriseText;
    p.Captions[16] = f.SunsetText;
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

    const MoonEventRecord& m = f.MoonEvents;
    const std::string rise = FormatClock(0, m.RiseTime, ampm);
    const std::string set = FormatClock(0, m.SetTime, ampm);
    std::string first = "Rise", firstTime = rise, second = "Set", secondTime = set;
    if (m.RiseFlag == EventFlag::OtherDay) {
        first = "Set", firstTime = set, second = "Rise", secondTime = "*****";
    } else if (m.SetFlag == EventFlag::OtherDay) {
        first = "Set", firstTime = "*****", second = "Rise", secondTime = rise;
    } else if (m.RiseTime > m.SetTime) {
        first = "Set", firstTime = set, second = "Rise", secondTime = rise;
    }
    p.Captions[18] = first;
    p.Captions[19] = firstTime;
    p.Captions[21] = second;
    p.Captions[22] = secondTime;
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
    default:
        return {};
    }
}
