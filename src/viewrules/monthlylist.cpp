// SPDX-License-Identifier: GPL-3.0-or-later
#include "viewrules/monthlylist.h"

#include "astro/astronomy.h"
#include "calendar/calendar.h"
#include "text/vbformat.h"

#include <algorithm>
#include <tuple>

const std::array<const char*, 4> MonthlyListHeadings = {
    "            Sun                 Moon ",
    "Day Rise      Set      Rise     Set          Majors             Minors",
    "                 Sun                  Moon ",
    "Day   Rise       Set         Rise       Set              Majors                 Minors",
};

namespace {
// "07:30 A": the 12-hour layout's times.
constexpr std::size_t ShortClockWidth = 7;
// The 24-hour layout's moon columns: "HH:MM" after a lead of three blanks (rise and set) or
// two (the transit).
constexpr std::size_t RiseSetColumnWidth = 8;
constexpr std::size_t TransitColumnWidth = 7;

void AppendColumn(std::string& line, const std::string& text, std::size_t width)
{
    const std::size_t lead = std::min(text.find_first_not_of(' '), text.size());
    if (text.compare(lead, 4, "****") != 0) {
        line += text + " ";
        return;
    }
    std::string placeholder = text.substr(0, lead) + "XX:XX";
    placeholder.resize(std::max(width, placeholder.size()), ' ');
    line += placeholder + " ";
}
} // namespace

void PRNTrue(std::string& line, const std::string& text)
{
    AppendColumn(line, text, ShortClockWidth);
}

void PRNFalse(std::string& line, const std::string& text, std::size_t width)
{
    AppendColumn(line, text, width);
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
            const std::string time = flag == EventFlag::InDay ? clock(h) : "****";
            return ampm ? ShortClock(time) : lead + time;
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
            // The periods read as the engine's clock writes them; the second major is never
            // missing and gives their width.
            const std::size_t period = f.Major2Text.size();
            PRNFalse(line, rise, RiseSetColumnWidth);
            PRNFalse(line, set, RiseSetColumnWidth);
            PRNFalse(line, transit, TransitColumnWidth);
            PRNFalse(line, f.Major2Text + "  ", period + 2);
            PRNFalse(line, f.Minor1Text + "  ", period + 2);
            PRNFalse(line, f.Minor2Text, period);
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
