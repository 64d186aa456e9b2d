// SPDX-License-Identifier: GPL-3.0-or-later
#include "logdb/reportlines.h"

#include "astro/timebase.h"
#include "logdb/catchunits.h"
#include "text/vbformat.h"

namespace {

constexpr int TitleLines = 3;
constexpr int MostLines = 60;

std::string Blanks(int count) { return std::string(std::size_t(count), ' '); }

std::string Number(const std::optional<double>& value, std::string_view pattern)
{
    return value ? VbFormat(*value, pattern) : std::string();
}

// A null major or minor is written as eight zeros.
std::string Clock(const std::optional<double>& major)
{
    return major ? VbFormatDate(*major, "hh:mm AM/PM") : std::string("00000000");
}

std::string Hours(const std::optional<double>& minor, bool ampm)
{
    return minor ? FormatClock(0, *minor, ampm) : std::string("00000000");
}

} // namespace

std::string ReportLine(int item, const ReportRecord& r, bool ampm)
{
    std::string line = VbFormat(item, "000") + Blanks(2);
    line += (r.JulianDate ? VbFormatDate(*r.JulianDate, "mm/dd/yyyy") : std::string()) + Blanks(2);
    line += Clock(r.Major1) + Blanks(3);
    line += Clock(r.Major2) + Blanks(2);
    line += Hours(r.Minor1, ampm) + Blanks(2);
    line += Hours(r.Minor2, ampm) + Blanks(6);
    line += Number(r.GraphicType, "0") + Blanks(5);
    line += Number(r.IllumPercent, "000") + Blanks(2);
    line += Number(r.MoonAge, "00") + Blanks(4);
    return line += ReportLineEnd;
}

std::string CatchReportLine(const ReportCatch& c)
{
    constexpr int Indent = 5;
    constexpr std::size_t ClockWidth = 5; // "06:15" of "06:15:00"
    std::string line =
        Blanks(Indent) + (c.Time.empty() ? Blanks(int(ClockWidth)) : c.Time.substr(0, ClockWidth));
    const auto piece = [&line](const std::string& text) {
        if (!text.empty())
            line += Blanks(2) + text;
    };
    piece((c.Species.empty() ? std::string("(no species)") : c.Species) + " x" +
          std::to_string(c.Count));
    if (c.LengthMm)
        piece(LengthText(*c.LengthMm, UnitSystem::Metric) + " cm");
    if (c.WeightG)
        piece(WeightText(*c.WeightG, UnitSystem::Metric) + " kg");
    piece(c.Released ? "released" : "kept");
    piece(c.Bait);
    return line += ReportLineEnd;
}

std::string ReportTitleLine(int page)
{
    return "Quillmere DataBase Report - Page # " + std::to_string(page);
}

std::string ReportDashLine() { return std::string(76, '-'); }

std::vector<std::vector<std::string>> ReportPages(std::string_view text)
{
    std::vector<std::vector<std::string>> pages;
    const auto startPage = [&pages] {
        pages.push_back(
            {ReportTitleLine(int(pages.size()) + 1), std::string(ReportHeading), ReportDashLine()});
    };
    startPage();
    int count = TitleLines;
    for (auto end = text.find(ReportLineEnd); end != std::string_view::npos;
         end = text.find(ReportLineEnd)) {
        pages.back().emplace_back(text.substr(0, end));
        text.remove_prefix(end + ReportLineEnd.size());
        if (++count > MostLines) {
            startPage();
            count = TitleLines;
        }
    }
    return pages;
}

std::string PagesAsText(const std::vector<std::vector<std::string>>& pages)
{
    std::string text;
    for (std::size_t p = 0; p < pages.size(); ++p) {
        text += p > 0 ? "\f" : "";
        for (const std::string& line : pages[p])
            text += line + "\n";
    }
    return text;
}
