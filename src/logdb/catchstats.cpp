// SPDX-License-Identifier: GPL-3.0-or-later
#include "logdb/catchstats.h"

#include "db/storedforms.h"
#include "text/timeunits.h"

#include <algorithm>
#include <cctype>
#include <chrono>
#include <cmath>
#include <cstdio>

namespace {

constexpr double SynodicMonthDays = 29.530589;

bool Blank(const std::string& text)
{
    return std::all_of(text.begin(), text.end(), [](unsigned char c) { return std::isspace(c); });
}

long SecondsOfHour(double hours) { return std::lround(hours * SecondsPerHour); }

// "7:00 AM" -> seconds after midnight.
std::optional<long> SecondsOfClockText(const std::string& text)
{
    const std::optional<std::string> stored = StoredTime(text);
    const std::optional<double> serial = stored ? StoredSerial(*stored) : std::nullopt;
    if (!serial)
        return std::nullopt;
    return std::lround(*serial * SecondsPerDay);
}

CatchGrouping Grouping(std::string title, std::vector<std::string> names)
{
    CatchGrouping grouping{std::move(title), {}};
    for (std::string& name : names)
        grouping.Groups.push_back({std::move(name), 0, 0});
    return grouping;
}

// The principal phase nearest to the moon's age: New Moon 0-3 and 26-29 days, First Quarter
// 4-11, Full Moon 12-18, Last Quarter 19-25.
int NearestPhase(int moonAge)
{
    const double quarters = moonAge / (SynodicMonthDays / 4.0);
    return static_cast<int>(std::floor(quarters + 0.5)) % 4;
}

int WeekdayIndex(const CatchDay& day)
{
    using namespace std::chrono;
    const year_month_day date{year{day.Year}, month{static_cast<unsigned>(day.Month)},
                              std::chrono::day{static_cast<unsigned>(day.Day)}};
    return static_cast<int>(weekday{sys_days{date}}.c_encoding()); // 0 = Sunday
}

std::optional<int> PeakDistanceGroup(const CatchDay& day)
{
    const std::optional<double> minutes = PeakDistanceMinutes(day);
    if (!minutes)
        return std::nullopt;
    if (*minutes <= 30)
        return 0;
    if (*minutes <= 60)
        return 1;
    return *minutes <= 120 ? 2 : 3;
}

void Count(CatchGroup& group, const CatchDay& day)
{
    ++group.DaysFished;
    group.TotalTaken += day.TotalTaken.value_or(0);
}

std::string Fixed(double value, int decimals)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.*f", decimals, value);
    return text;
}

std::string Row(const CatchGroup& g)
{
    return g.Name + "\t" + std::to_string(g.DaysFished) + "\t" + std::to_string(g.TotalTaken) +
           "\t" + Fixed(g.PerDay(), 2) + "\n";
}

} // namespace

bool IsFished(const CatchDay& day)
{
    return day.TotalTaken.has_value() || !Blank(day.PeakTime) || !Blank(day.Notes);
}

std::optional<double> PeakDistanceMinutes(const CatchDay& day)
{
    const std::optional<long> peak = SecondsOfClockText(day.PeakTime);
    if (!peak || day.PeriodHours.empty())
        return std::nullopt;
    long nearest = SecondsPerDay;
    for (const double hours : day.PeriodHours) {
        const long apart = std::labs(*peak - SecondsOfHour(hours)) % SecondsPerDay;
        nearest = std::min({nearest, apart, SecondsPerDay - apart});
    }
    return static_cast<double>(nearest) / SecondsPerMinute;
}

double CatchGroup::PerDay() const
{
    return DaysFished == 0 ? 0.0 : static_cast<double>(TotalTaken) / DaysFished;
}

CatchStatistics ComputeCatchStatistics(const std::vector<CatchDay>& days)
{
    CatchStatistics stats;
    stats.Groupings[ByRating] = Grouping("Rating", {"Best", "V.Good", "Good", "Fair", "unrated"});
    stats.Groupings[ByMoonPhase] =
        Grouping("Moon phase", {"New Moon", "First Quarter", "Full Moon", "Last Quarter"});
    int oldest = 29;
    for (const CatchDay& day : days)
        oldest = std::max(oldest, day.MoonAge);
    std::vector<std::string> ages;
    for (int age = 0; age <= oldest; ++age)
        ages.push_back(std::to_string(age));
    stats.Groupings[ByMoonAge] = Grouping("Moon age (days)", std::move(ages));
    stats.Groupings[ByWeekday] = Grouping(
        "Weekday", {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"});
    stats.Groupings[ByPeakDistance] =
        Grouping("Peak time from the nearest period",
                 {"within 30 min", "30-60 min", "60-120 min", "further"});

    for (const CatchDay& day : days) {
        if (!IsFished(day))
            continue;
        Count(stats.All, day);
        const int rating = std::clamp(day.Rating, 0, 4);
        Count(stats.Groupings[ByRating].Groups[static_cast<size_t>(4 - rating)], day);
        if (day.MoonAge >= 0) {
            Count(
                stats.Groupings[ByMoonPhase].Groups[static_cast<size_t>(NearestPhase(day.MoonAge))],
                day);
            Count(stats.Groupings[ByMoonAge].Groups[static_cast<size_t>(day.MoonAge)], day);
        }
        Count(stats.Groupings[ByWeekday].Groups[static_cast<size_t>(WeekdayIndex(day))], day);
        if (const std::optional<int> group = PeakDistanceGroup(day))
            Count(stats.Groupings[ByPeakDistance].Groups[static_cast<size_t>(*group)], day);
    }
    return stats;
}

std::string RateText(double rate) { return Fixed(rate, 1); }

std::string CatchSummary(const CatchStatistics& stats)
{
    const std::vector<CatchGroup>& ratings = stats.Groupings[ByRating].Groups;
    const auto fished = [](const CatchGroup& g) { return g.DaysFished > 0; };
    const auto best = std::find_if(ratings.begin(), ratings.end(), fished);
    if (best == ratings.end())
        return "No day fished yet: a day counts when Total Taken, Peak Time or Notes is filled in.";
    const auto worst = std::find_if(ratings.rbegin(), ratings.rend(), fished);
    std::string line =
        "On " + best->Name + " days you took " + RateText(best->PerDay()) + " fish per day fished";
    if (&*worst != &*best)
        line += ", on " + worst->Name + " days " + RateText(worst->PerDay());
    return line;
}

std::string CatchTableText(const CatchStatistics& stats)
{
    std::string text = "Group\tDays fished\tTotal taken\tPer day fished\n";
    for (const CatchGrouping& grouping : stats.Groupings) {
        text += grouping.Title + "\n";
        for (const CatchGroup& g : grouping.Groups)
            text += Row(g);
    }
    return text + Row(stats.All);
}
