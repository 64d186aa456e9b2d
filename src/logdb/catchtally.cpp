// SPDX-License-Identifier: GPL-3.0-or-later
#include "logdb/catchtally.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <map>

namespace {

constexpr double HoursPerDay = 24.0;
constexpr int HoursInDay = 24;

// Hours between two clock times, over midnight when that is shorter.
double ClockDistance(double a, double b)
{
    const double d = std::fmod(std::fabs(a - b), HoursPerDay);
    return std::min(d, HoursPerDay - d);
}

bool Near(double hour, const std::vector<double>& centres, double half)
{
    return std::any_of(centres.begin(), centres.end(),
                       [&](double centre) { return ClockDistance(hour, centre) <= half; });
}

void Count(CatchTally& tally, const CatchFact& c)
{
    ++tally.Catches;
    tally.Fish += c.Count;
    if (c.Released)
        tally.Released += c.Count;
}

// Names compare ignoring case, as the log's text columns do.
std::string Folded(const std::string& name)
{
    std::string folded = name;
    std::transform(folded.begin(), folded.end(), folded.begin(),
                   [](unsigned char ch) { return static_cast<char>(std::tolower(ch)); });
    return folded;
}

// The tallies by name (as first written), most fish first, then by name; blank names as
// `blank`.
std::vector<CatchTally> TallyByName(const std::vector<CatchFact>& catches,
                                    std::string CatchFact::*field, const std::string& blank)
{
    std::map<std::string, CatchTally> byName;
    for (const CatchFact& c : catches) {
        const std::string& name = (c.*field).empty() ? blank : c.*field;
        CatchTally& tally = byName[Folded(name)];
        if (tally.Name.empty())
            tally.Name = name;
        Count(tally, c);
    }
    std::vector<CatchTally> tallies;
    tallies.reserve(byName.size());
    for (auto& entry : byName)
        tallies.push_back(std::move(entry.second));
    std::stable_sort(tallies.begin(), tallies.end(),
                     [](const CatchTally& a, const CatchTally& b) { return a.Fish > b.Fish; });
    return tallies;
}

std::string BandName(double low)
{
    char text[48];
    std::snprintf(text, sizeof text, "%g to %g °C", low, low + WaterBandDegrees);
    return text;
}

std::vector<CatchTally> TallyByWater(const std::vector<CatchFact>& catches)
{
    std::map<double, CatchTally> bands;
    CatchTally unknown{"(no temperature)"};
    for (const CatchFact& c : catches) {
        if (!c.WaterTemp) {
            Count(unknown, c);
            continue;
        }
        const double low = std::floor(*c.WaterTemp / WaterBandDegrees) * WaterBandDegrees;
        CatchTally& band = bands[low];
        band.Name = BandName(low);
        band.BandLow = low;
        Count(band, c);
    }
    std::vector<CatchTally> tallies;
    tallies.reserve(bands.size() + 1);
    for (auto& entry : bands)
        tallies.push_back(std::move(entry.second));
    if (unknown.Catches > 0)
        tallies.push_back(unknown);
    return tallies;
}

void AppendGrouping(std::string& text, const std::string& title, const auto& tallies)
{
    text += title + '\n';
    for (const CatchTally& t : tallies)
        text += t.Name + '\t' + std::to_string(t.Catches) + '\t' + std::to_string(t.Fish) + '\t' +
                std::to_string(t.Released) + '\n';
}

} // namespace

CatchPeriod PeriodOf(const CatchFact& c)
{
    if (!c.Hour)
        return CatchPeriod::Untimed;
    if (Near(*c.Hour, c.Majors, MajorHalfHours))
        return CatchPeriod::Major;
    if (Near(*c.Hour, c.Minors, MinorHalfHours))
        return CatchPeriod::Minor;
    std::vector<double> sun;
    for (const std::optional<double>& event : {c.SunRise, c.SunSet})
        if (event)
            sun.push_back(*event);
    return Near(*c.Hour, sun, SunEventHalfHours) ? CatchPeriod::SunEvent : CatchPeriod::Other;
}

CatchBreakdown ComputeCatchBreakdown(const std::vector<CatchFact>& catches)
{
    CatchBreakdown b;
    b.ByPeriod = {CatchTally{"In a major period"}, CatchTally{"In a minor period"},
                  CatchTally{"Within an hour of sunrise or sunset"}, CatchTally{"At other times"},
                  CatchTally{"Time not recorded"}};
    for (int hour = 0; hour < HoursInDay; ++hour) {
        char name[8];
        std::snprintf(name, sizeof name, "%02d:00", hour);
        b.ByHour[hour].Name = name;
    }
    for (const CatchFact& c : catches) {
        Count(b.All, c);
        Count(b.ByPeriod[static_cast<int>(PeriodOf(c))], c);
        if (c.Hour)
            Count(b.ByHour[static_cast<int>(std::floor(*c.Hour)) % HoursInDay], c);
    }
    b.BySpecies = TallyByName(catches, &CatchFact::Species, "(no species)");
    b.BySpot = TallyByName(catches, &CatchFact::Spot, "(no spot)");
    b.ByWaterTemp = TallyByWater(catches);
    return b;
}

std::string BreakdownText(const CatchBreakdown& breakdown)
{
    std::string text = "Group\tCatches\tFish\tReleased\n";
    AppendGrouping(text, "All", std::vector{breakdown.All});
    AppendGrouping(text, "By species", breakdown.BySpecies);
    AppendGrouping(text, "By solunar period", breakdown.ByPeriod);
    AppendGrouping(text, "By hour", breakdown.ByHour);
    AppendGrouping(text, "By spot", breakdown.BySpot);
    AppendGrouping(text, "By water temperature", breakdown.ByWaterTemp);
    return text;
}
