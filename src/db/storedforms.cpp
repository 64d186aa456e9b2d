// SPDX-License-Identifier: GPL-3.0-or-later
#include "db/storedforms.h"

#include "text/timeunits.h"
#include "text/vbformat.h"

#include <cctype>
#include <chrono>
#include <cstdio>

namespace {

// A left-to-right reader over a value text.
class Scanner {
public:
    explicit Scanner(std::string_view text) : text_(text) {}

    bool AtEnd() const { return pos_ == text_.size(); }
    std::size_t Pos() const { return pos_; }
    void Rewind(std::size_t pos) { pos_ = pos; }

    void SkipBlanks()
    {
        while (!AtEnd() && text_[pos_] == ' ')
            ++pos_;
    }

    // Reads minDigits to maxDigits decimal digits.
    std::optional<int> Number(std::size_t minDigits, std::size_t maxDigits)
    {
        const std::size_t start = pos_;
        int value = 0;
        while (!AtEnd() && pos_ - start < maxDigits &&
               std::isdigit(static_cast<unsigned char>(text_[pos_]))) {
            value = value * 10 + (text_[pos_] - '0');
            ++pos_;
        }
        if (pos_ - start < minDigits)
            return std::nullopt;
        return value;
    }

    bool Accept(char c)
    {
        if (AtEnd() || text_[pos_] != c)
            return false;
        ++pos_;
        return true;
    }

    bool AcceptWord(std::string_view word)
    {
        if (text_.size() - pos_ < word.size())
            return false;
        for (std::size_t i = 0; i < word.size(); ++i) {
            if (std::toupper(static_cast<unsigned char>(text_[pos_ + i])) != word[i])
                return false;
        }
        pos_ += word.size();
        return true;
    }

private:
    std::string_view text_;
    std::size_t pos_ = 0;
};

struct Date {
    int Year, Month, Day;
};
struct Time {
    int Hour, Minute, Second;
};

bool IsValid(const Date& d)
{
    using namespace std::chrono;
    return d.Year >= 100 && d.Year <= 9999 &&
           year_month_day{year{d.Year}, month{unsigned(d.Month)}, day{unsigned(d.Day)}}.ok();
}

std::optional<Date> ReadDate(Scanner& s)
{
    const std::size_t start = s.Pos();
    const auto first = s.Number(1, 4);
    if (first && s.Pos() - start == 4 && s.Accept('-')) { // YYYY-MM-DD
        const auto month = s.Number(2, 2);
        const auto day = s.Accept('-') ? s.Number(2, 2) : std::nullopt;
        if (month && day && IsValid({*first, *month, *day}))
            return Date{*first, *month, *day};
    } else if (first && s.Accept('/')) { // m/d/yyyy, the order of the program's date texts
        const auto day = s.Number(1, 2);
        const auto year = s.Accept('/') ? s.Number(4, 4) : std::nullopt;
        if (day && year && IsValid({*year, *first, *day}))
            return Date{*year, *first, *day};
    }
    s.Rewind(start);
    return std::nullopt;
}

std::optional<int> ReadMeridiem(Scanner& s)
{
    s.SkipBlanks();
    if (s.AcceptWord("AM") || s.AcceptWord("A"))
        return 0;
    if (s.AcceptWord("PM") || s.AcceptWord("P"))
        return 12;
    return std::nullopt;
}

std::optional<Time> ReadTime(Scanner& s)
{
    const std::size_t start = s.Pos();
    Time t{};
    const auto hour = s.Number(1, 2);
    const auto minute = s.Accept(':') ? s.Number(2, 2) : std::nullopt;
    const auto second = s.Accept(':') ? s.Number(2, 2) : std::optional<int>(0);
    if (!hour || !minute || !second || *minute > 59 || *second > 59) {
        s.Rewind(start);
        return std::nullopt;
    }
    t = {*hour, *minute, *second};
    if (const auto meridiem = ReadMeridiem(s)) {
        if (t.Hour > 12) {
            s.Rewind(start);
            return std::nullopt;
        }
        t.Hour = t.Hour % 12 + *meridiem;
    } else if (t.Hour > 23) {
        s.Rewind(start);
        return std::nullopt;
    }
    return t;
}

std::string Text(const Date& d)
{
    char buf[16];
    std::snprintf(buf, sizeof buf, "%04d-%02d-%02d", d.Year, d.Month, d.Day);
    return buf;
}

std::string Text(const Time& t)
{
    char buf[16];
    std::snprintf(buf, sizeof buf, "%02d:%02d:%02d", t.Hour % 100, t.Minute % 100, t.Second % 100);
    return buf;
}

std::string_view Trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

// The whole text as a date and/or a time; either part may be required absent.
struct DateTime {
    std::optional<Date> DatePart;
    std::optional<Time> TimePart;
};

std::optional<DateTime> ReadDateTime(std::string_view text)
{
    Scanner s(Trimmed(text));
    DateTime dt;
    dt.DatePart = ReadDate(s);
    s.SkipBlanks();
    if (!s.AtEnd())
        dt.TimePart = ReadTime(s);
    if (!s.AtEnd() || (!dt.DatePart && !dt.TimePart))
        return std::nullopt;
    return dt;
}

} // namespace

std::optional<std::string> StoredDate(std::string_view text)
{
    const auto dt = ReadDateTime(text);
    if (!dt || !dt->DatePart || dt->TimePart)
        return std::nullopt;
    return Text(*dt->DatePart);
}

std::optional<std::string> StoredTime(std::string_view text)
{
    const auto dt = ReadDateTime(text);
    if (!dt || dt->DatePart || !dt->TimePart)
        return std::nullopt;
    return Text(*dt->TimePart);
}

std::optional<std::string> StoredDateTime(std::string_view text)
{
    const auto dt = ReadDateTime(text);
    if (!dt)
        return std::nullopt;
    if (!dt->TimePart)
        return Text(*dt->DatePart);
    if (!dt->DatePart)
        return Text(*dt->TimePart);
    return Text(*dt->DatePart) + " " + Text(*dt->TimePart);
}

std::optional<double> StoredSerial(std::string_view stored)
{
    using namespace std::chrono;
    const auto dt = ReadDateTime(stored);
    if (!dt)
        return std::nullopt;
    double serial = 0.0;
    if (dt->DatePart) {
        const Date& d = *dt->DatePart;
        const sys_days day{year{d.Year} / month{unsigned(d.Month)} / unsigned(d.Day)};
        serial = double((day - SerialDayZero).count());
    }
    if (dt->TimePart) {
        const Time& t = *dt->TimePart;
        serial += (t.Hour * SecondsPerHour + t.Minute * SecondsPerMinute + t.Second) /
                  double(SecondsPerDay);
    }
    return serial;
}

std::optional<std::string> FormatStored(std::string_view stored, std::string_view pattern)
{
    const auto serial = StoredSerial(stored);
    if (!serial)
        return std::nullopt;
    return VbFormatDate(*serial, pattern);
}
