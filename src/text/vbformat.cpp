// SPDX-License-Identifier: GPL-3.0-or-later
#include "text/vbformat.h"

#include "text/timeunits.h"

#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

// The magnitude of a value as decimal digits rounded at `decimals` places, half away from
// zero, working on the 15 significant digits VB keeps.
struct Decimal {
    std::string IntDigits;  // no leading zeros; empty for zero
    std::string FracDigits; // exactly `decimals` digits
};

Decimal ToDecimal(double magnitude, int decimals)
{
    // Whole numbers below 10^15 are exact in 15 digits: nothing to round, no text to parse.
    // Clock texts format whole hours and minutes, so this is the common case.
    if (magnitude < 1e15 && magnitude == std::floor(magnitude)) {
        Decimal d;
        d.IntDigits = magnitude == 0 ? "" : std::to_string(static_cast<long long>(magnitude));
        d.FracDigits.assign(std::size_t(decimals), '0');
        return d;
    }
    char buf[40];
    std::snprintf(buf, sizeof buf, "%.14e", magnitude); // d.dddddddddddddde+XX
    std::string digits;
    digits += buf[0];
    digits.append(buf + 2, 14);
    const int exponent = std::atoi(std::strchr(buf, 'e') + 1);
    // The value is 0.digits x 10^(exponent+1); place the point.
    const int pointPos = exponent + 1;
    const int keep = pointPos + decimals; // digits to keep before rounding
    std::string kept;
    bool roundUp = false;
    if (keep < 0) {
        kept.clear();
    } else {
        kept = digits.substr(0, std::min<std::size_t>(std::size_t(keep), digits.size()));
        kept.append(std::size_t(keep) - kept.size(), '0');
        roundUp = std::size_t(keep) < digits.size() && digits[std::size_t(keep)] >= '5';
    }
    if (roundUp) {
        int i = int(kept.size()) - 1;
        while (i >= 0 && kept[std::size_t(i)] == '9')
            kept[std::size_t(i--)] = '0';
        if (i >= 0)
            ++kept[std::size_t(i)];
        else
            kept.insert(kept.begin(), '1');
    }
    // Left-pad so that the fractional part is complete.
    if (kept.size() < std::size_t(decimals))
        kept.insert(0, std::size_t(decimals) - kept.size(), '0');
    Decimal d;
    d.FracDigits = kept.substr(kept.size() - std::size_t(decimals));
    d.IntDigits = kept.substr(0, kept.size() - std::size_t(decimals));
    const auto nz = d.IntDigits.find_first_not_of('0');
    d.IntDigits = nz == std::string::npos ? "" : d.IntDigits.substr(nz);
    return d;
}

} // namespace

std::string VbFormat(double value, std::string_view pattern)
{
    const auto point = pattern.find('.');
    const std::string_view intPart = pattern.substr(0, point);
    const std::string_view fracPart =
        point == std::string_view::npos ? std::string_view{} : pattern.substr(point + 1);

    const auto firstZero = intPart.find('0');
    const std::size_t minInt = firstZero == std::string_view::npos ? 0 : intPart.size() - firstZero;
    const auto lastZero = fracPart.rfind('0');
    const std::size_t minFrac = lastZero == std::string_view::npos ? 0 : lastZero + 1;

    const Decimal d = ToDecimal(std::fabs(value), int(fracPart.size()));
    std::string intDigits = d.IntDigits;
    if (intDigits.size() < minInt)
        intDigits.insert(0, minInt - intDigits.size(), '0');
    std::string frac = d.FracDigits;
    while (frac.size() > minFrac && frac.back() == '0')
        frac.pop_back();

    const bool isZero =
        d.IntDigits.empty() && d.FracDigits.find_first_not_of('0') == std::string::npos;
    std::string text = (value < 0 && !isZero) ? "-" : "";
    text += intDigits;
    if (point != std::string_view::npos)
        text += "." + frac;
    return text;
}

namespace {

constexpr std::array<const char*, 12> FullMonths = {
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December"};
constexpr std::array<const char*, 7> ShortDays = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};

struct DateParts {
    int Year, Month, Day, DayOfYear, Weekday; // Weekday: Sunday = 1
    int Hour, Minute, Second;
};

DateParts Split(double serial)
{
    using namespace std::chrono;
    // Whole seconds, rounded half away from zero, carrying into the day.
    const auto total = static_cast<long long>(std::floor(serial * SecondsPerDay + 0.5));
    const long long dayCount =
        total >= 0 ? total / SecondsPerDay : -((-total + SecondsPerDay - 1) / SecondsPerDay);
    const long long secs = total - dayCount * SecondsPerDay;
    const sys_days day = SerialDayZero + days{dayCount};
    const year_month_day ymd{day};
    const sys_days jan1{ymd.year() / January / 1};
    DateParts p{};
    p.Year = int(ymd.year());
    p.Month = int(unsigned(ymd.month()));
    p.Day = int(unsigned(ymd.day()));
    p.DayOfYear = int((day - jan1).count()) + 1;
    p.Weekday = int(weekday{day}.c_encoding()) + 1;
    p.Hour = int(secs / SecondsPerHour);
    p.Minute = int(secs / SecondsPerMinute % MinutesPerHour);
    p.Second = int(secs % SecondsPerMinute);
    return p;
}

std::string TwoDigits(int v) { return VbFormat(v, "00"); }

} // namespace

std::string VbFormatDate(double serial, std::string_view pattern)
{
    const DateParts p = Split(serial);
    const bool twelveHour = pattern.find("AMPM") != std::string_view::npos ||
                            pattern.find("AM/PM") != std::string_view::npos;
    const int hour12 = p.Hour % 12 == 0 ? 12 : p.Hour % 12;
    const int hour = twelveHour ? hour12 : p.Hour;

    std::string out;
    bool afterHour = false; // "m"/"mm" right after an hour token means minutes
    std::size_t i = 0;
    auto run = [&](char c) {
        std::size_t n = 0;
        while (i + n < pattern.size() && pattern[i + n] == c)
            ++n;
        return n;
    };
    while (i < pattern.size()) {
        const std::string_view rest = pattern.substr(i);
        if (rest.starts_with("AMPM") || rest.starts_with("AM/PM")) {
            out += p.Hour < 12 ? "AM" : "PM";
            i += rest.starts_with("AMPM") ? 4 : 5;
            continue;
        }
        const char c = pattern[i];
        const std::size_t n = run(c);
        switch (c) {
        case 'y':
            out += n >= 4   ? std::to_string(p.Year)
                   : n >= 2 ? TwoDigits(p.Year % 100)
                            : std::to_string(p.DayOfYear);
            break;
        case 'm':
            if (afterHour && n <= 2)
                out += n == 2 ? TwoDigits(p.Minute) : std::to_string(p.Minute);
            else if (n >= 4)
                out += FullMonths[std::size_t(p.Month - 1)];
            else if (n == 3)
                out += std::string(FullMonths[std::size_t(p.Month - 1)]).substr(0, 3);
            else
                out += n == 2 ? TwoDigits(p.Month) : std::to_string(p.Month);
            break;
        case 'd':
            if (n >= 3)
                out += ShortDays[std::size_t(p.Weekday - 1)];
            else
                out += n == 2 ? TwoDigits(p.Day) : std::to_string(p.Day);
            break;
        case 'w':
            out += std::to_string(p.Weekday);
            break;
        case 'h':
            out += n >= 2 ? TwoDigits(hour) : std::to_string(hour);
            break;
        case 'n':
            out += n >= 2 ? TwoDigits(p.Minute) : std::to_string(p.Minute);
            break;
        case 's':
            out += n >= 2 ? TwoDigits(p.Second) : std::to_string(p.Second);
            break;
        default:
            out.append(n, c);
            break;
        }
        if (c == 'h')
            afterHour = true;
        else if (c != ':' && c != ' ')
            afterHour = false;
        i += n;
    }
    return out;
}
