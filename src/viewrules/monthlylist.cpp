#include "viewrules/monthlylist.h"

#include "astro/astronomy.h"
#include "calendar/calendar.h"
#include "text/vbformat.h"

#include <tuple>

const std::array<const char*, 4> MonthlyListHeadings = {
    "            Sun                 Moon ",
    "Day Rise      Set      Rise     Set          Majors             Minors",
    "                 Sun                  Moon ",
    "Day   Rise       Set         Rise       Set              Majors                 Minors",
};

namespace {
bool Missing(const std::string& text) { return text.rfind("****", 0) == 0; }
} // namespace

void PRNTrue(std::string& line, const std::string& text)
{
    line += Missing(text) ? std::string(" ") + "XX:XX  " + " " : text + " ";
}

void PRNFalse(std::string& line, const std::string& text)
{
    line += Missing(text) ? std::string(" ") + "XX:XX   " : text + " ";
}

std::vector<std::string> MonthlyListLines(Astronomy& engine, double monthStartJD, int monthDays,
                                          bool ampm)
{
    std::vector<std::string> lines;
    const DayForecast& f = engine.Forecast;
    auto clock = [ampm](double h) { return FormatClock(0, h, ampm); };
    for (int d = 1; d <= monthDays; ++d) {
        std::string line = VbFormat(d, "00");
        const double J = monthStartJD + d - 1;
        engine.ComputeSunDay(J);
        const RiseTransitSet& sun = f.SunEvents.Horizon;
        if (ampm)
            line +=
                "  " + ShortClock(clock(sun.RiseTime)) + " " + ShortClock(clock(sun.SetTime)) + " ";
        else
            line += "   " + clock(sun.RiseTime) + "   " + clock(sun.SetTime) + "     ";
        engine.ComputeDay(J);
        const MoonEventRecord& m = f.MoonEvents;
        // A moon event of the day, or "****" (the list's placeholder) when the day has none.
        const auto moon = [&](EventFlag flag, double h, const char* lead) {
            if (flag != EventFlag::InDay)
                return std::string("****");
            return ampm ? ShortClock(clock(h)) : lead + clock(h);
        };
        const std::string rise = moon(m.RiseFlag, m.RiseTime, "   ");
        const std::string set = moon(m.SetFlag, m.SetTime, "   ");
        const std::string transit = moon(m.TransitFlag, m.TransitTime, "  ");
        if (ampm) {
            PRNTrue(line, rise);
            PRNTrue(line, set);
            PRNTrue(line, transit);
            PRNTrue(line, ShortClock(f.Major2Text));
            PRNTrue(line, ShortClock(f.Minor1Text));
            PRNTrue(line, ShortClock(f.Minor2Text));
        } else {
            PRNFalse(line, rise);
            PRNFalse(line, set);
            PRNFalse(line, transit);
            PRNFalse(line, f.Major2Text + "  ");
            PRNFalse(line, f.Minor1Text + "  ");
            PRNFalse(line, f.Minor2Text);
        }
        // Near the poles the Moon may rise or set again before midnight: after the columns.
        for (const auto& [name, flag, hours] :
             {std::tuple{"Rise", m.LaterRiseFlag, m.LaterRiseTime},
              std::tuple{"Set", m.LaterSetFlag, m.LaterSetTime}})
            if (flag == EventFlag::InDay)
                line += std::string(" 2nd ") + name + " " + moon(flag, hours, "");
        lines.push_back(line);
    }
    return lines;
}

std::string MonthlyListClipboard(int month, int year, const std::vector<std::string>& lines)
{
    std::string text = MonthAbbrev(month) + " " + std::to_string(year) + "\r\n\r\n" +
                       MonthlyListHeadings[2] + "\r\n" + MonthlyListHeadings[3] + "\r\n";
    for (const std::string& line : lines)
        text += line + "\r\n";
    return text;
}

std::vector<std::string> MonthlyListPrinted(int month, int year,
                                            const std::vector<std::string>& lines)
{
    // Each print statement ends its own line after the line breaks it carries.
    std::vector<std::string> printed = {MonthAbbrev(month) + " " + std::to_string(year),
                                        "",
                                        "",
                                        "",
                                        MonthlyListHeadings[2],
                                        "",
                                        MonthlyListHeadings[3]};
    printed.insert(printed.end(), lines.begin(), lines.end());
    return printed;
}
