// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/calendar.h"

#include "astro/astronomy.h"
#include "astro/timebase.h"

#include <chrono>

const std::array<const char*, 8> DayNames = {"",          "Sunday",   "Monday", "Tuesday",
                                             "Wednesday", "Thursday", "Friday", "Saturday"};
const std::array<const char*, 13> MonthNames = {
    "",     "January", "February",  "March",   "April",    "May",     "June",
    "July", "August",  "September", "October", "November", "December"};
const std::array<const char*, 5> PhaseNames = {"", "New Moon", "First Quarter", "Full Moon",
                                               "Last Quarter"};
const std::array<const char*, 5> SeasonNames = {"", "Spring Equinox  ", "Summer Solstice ",
                                                "Fall Equinox    ", "Winter Solstice "};

namespace {
const std::string MonthDaysTable = " 312831303130313130313031";
const std::string CommonStarts = "  001032060091121152182213244274305335";
const std::string LeapStarts = "  001032061092122153183214245275306336";
const std::string Abbreviations = "  JanFebMarAprMayJunJulAugSepOctNovDec";

constexpr std::uint32_t LightGrey = 0xC0C0C0, Blue = 0xFF0000, White = 0xFFFFFF;
constexpr std::uint32_t Red = 0x0000FF, Black = 0x000000;
} // namespace

bool IsLeapYear(int y) { return (y % 4 == 0 && y % 100 != 0) || y % 400 == 0; }

int WeekdayOf(int year, int month, int day)
{
    using namespace std::chrono;
    const sys_days d{std::chrono::year{year} / std::chrono::month{unsigned(month)} / unsigned(day)};
    return int(weekday{d}.c_encoding()) + 1;
}

int DayOfYearOf(int year, int month, int day)
{
    using namespace std::chrono;
    const sys_days d{std::chrono::year{year} / std::chrono::month{unsigned(month)} / unsigned(day)};
    const sys_days first{std::chrono::year{year} / January / 1};
    return int((d - first).count()) + 1;
}

void Calendar::LeapYear() { LeapFlag = IsLeapYear(CurYear) ? 1 : 0; }

std::int16_t Calendar::DaysInMonth(int month)
{
    return static_cast<std::int16_t>(
        std::stoi(MonthDaysTable.substr(std::size_t(2 * month - 1), 2)));
}

Calendar::YearKey Calendar::KeyOf(const Astronomy& engine, std::int16_t southernHemisphere) const
{
    const Observer& o = engine.Site;
    return {CurYear,     southernHemisphere, o.CurLongitude,        o.CurLatitude, o.CurTimeZone,
            o.ZoneDays,  o.DstOffsetDays,    o.TwilightsInClockDay, o.TimeFormats, o.AMPM,
            o.Clock.Name};
}

void Calendar::SetYearTables(Astronomy& engine, std::int16_t southernHemisphere)
{
    LeapYear();
    MonthDays = static_cast<std::int16_t>(DaysInMonth(CurMonth) + (CurMonth == 2 ? LeapFlag : 0));
    FirstWeekday = static_cast<std::int16_t>(WeekdayOf(CurYear, CurMonth, 1) - 1);
    YearSlots = LeapFlag ? 367 : 366;
    const std::string& starts = LeapFlag ? LeapStarts : CommonStarts;
    YearStartJD = CivilToJd(CurYear, 1, 1);
    for (std::size_t m = 1; m <= 12; ++m) {
        MonthStartDoy[m] = static_cast<std::int16_t>(std::stoi(starts.substr(3 * m - 1, 3)));
        MonthStartJD[m] = YearStartJD + MonthStartDoy[m] - 1;
    }
    // The year's events and holidays stand while the year, the place and its clock do.
    YearKey key = KeyOf(engine, southernHemisphere);
    if (key == BuiltFor && !YearDays.empty())
        return;
    ++YearTableBuilds;
    YearDays.assign(std::size_t(YearSlots) + 2, DayMarks{});
    SetYearEvents(*this, engine, southernHemisphere);
    SetHolidays(*this, engine.Site.Clock);
    BuiltFor = std::move(key);
}

bool Calendar::StepMonth(int step)
{
    const int month = CurMonth + step;
    if (month >= 1 && month <= 12) {
        CurMonth = static_cast<std::int16_t>(month);
        return false;
    }
    CurMonth = month < 1 ? 12 : 1;
    const int year = CurYear + step;
    CurYear = static_cast<std::int16_t>(year < FirstYear  ? LastYear
                                        : year > LastYear ? FirstYear
                                                          : year);
    return true;
}

void Calendar::ComputePrevMonthDays()
{
    const std::int16_t month = CurMonth, year = CurYear;
    StepMonth(-1);
    PrevMonthDays = std::int16_t(DaysInMonth(CurMonth) + (CurMonth == 2 && IsLeapYear(CurYear)));
    CurMonth = month;
    CurYear = year;
}

std::array<DayCell, MonthGridCells> Calendar::DrawMonth(Astronomy& engine,
                                                        std::int16_t southernHemisphere,
                                                        int todayYear, int todayMonth, int todayDay)
{
    SetYearTables(engine, southernHemisphere);
    const int offset = FirstWeekday, last = MonthDays + offset;
    int previous = PrevMonthDays - offset + 1, next = 1;
    const int base = MonthStartDoy[std::size_t(CurMonth)] - offset;
    std::array<DayCell, MonthGridCells> cells{};
    for (int i = 0; i < MonthGridCells; ++i) {
        DayCell& c = cells[std::size_t(i)];
        if (i < offset || i >= last) {
            c.Of = i < offset ? DayCell::Kind::PreviousMonth : DayCell::Kind::NextMonth;
            c.Number = i < offset ? previous++ : next++;
            c.Background = Blue;
            c.TextColor = White;
            c.Enabled = false;
            continue;
        }
        const DayMarks& r = YearDays[std::size_t(base + i)];
        c.Number = i - offset + 1;
        c.DayOfYear = base + i;
        c.Background = LightGrey;
        c.TextColor = r.Holiday && !r.Text.empty() ? Red : Black;
        c.PhasePicture = r.Phase >= 1 && r.Phase <= 4 ? 19 + r.Phase : 0;
        c.RatingPicture = r.Rating >= 1 && r.Rating <= 4 ? r.Rating : 0;
        c.Marks = (r.Perigee >= 1) + (r.Declination >= 1) + (r.SeasonJD > 0);
    }
    const bool today = CurYear == todayYear && CurMonth == todayMonth;
    TodayCell = static_cast<std::int16_t>(FirstWeekday + (today ? todayDay - 1 : 0));
    SelCell = TodayCell;
    return cells;
}

std::string MonthDaysText(int w, int n)
{
    const std::string t = std::string(48, ' ').substr(0, std::size_t(5 * w)) +
                          "1   2   3   4   5   6   7   8   9   10 11 12 13 14 15 16 17 "
                          "18 19 20 21 22 23 24 25 26 27 28 29 30 31";
    const std::size_t at = t.find(" " + std::to_string(n));
    return t.substr(0, at + 3);
}

std::string MonthAbbrev(int month) { return Abbreviations.substr(std::size_t(3 * month - 1), 3); }

std::string ShortClock(const std::string& s)
{
    if (s.rfind("****", 0) == 0)
        return s;
    return s.substr(0, s.find('M'));
}
