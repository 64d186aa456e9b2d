// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/locationrules.h"

#include <cctype>
#include <cmath>

std::string Pad(int n)
{
    if (n < 10)
        return "00" + std::to_string(n);
    if (n < 100)
        return "0" + std::to_string(n);
    return std::to_string(n);
}

std::string PadFrac(int n) { return n <= 9 ? "0" + std::to_string(n) : std::to_string(n); }

DegreeParts SplitDegrees(double value)
{
    const double magnitude = std::fabs(value);
    DegreeParts parts{int(std::trunc(magnitude)), 0};
    // nearbyint rounds half to even in the default rounding mode.
    parts.Hundredths = int(std::fabs(std::nearbyint((magnitude - parts.Whole) * 100.0)));
    if (parts.Hundredths >= 100) {
        ++parts.Whole;
        parts.Hundredths = 0;
    }
    return parts;
}

double JoinDegrees(int whole, int hundredths, bool negative)
{
    const double value = whole + hundredths / 100.0;
    return negative ? -value : value;
}

const std::vector<TimeZoneEntry>& TimeZoneEntries()
{
    static const std::vector<TimeZoneEntry> entries = [] {
        static constexpr const char* Names[] = {"  (Atlantic)", "  (Eastern)",   "  (Central)",
                                                "  (Mountain)", "  (Pacific)",   "  (Alaska)",
                                                "  (Hawaii)",   "  (Midway Is.)"};
        std::vector<TimeZoneEntry> list;
        for (int k = 12; k >= 1; --k)
            list.push_back({"+" + std::to_string(k), std::int16_t(-k)});
        list.push_back({" 0  (UTC)", 0});
        for (int k = 1; k <= 12; ++k) {
            const std::string name = k >= 4 && k <= 11 ? Names[k - 4] : "";
            list.push_back({"-" + std::to_string(k) + name, std::int16_t(k)});
        }
        return list;
    }();
    return entries;
}

std::string BoundedLocationName(const std::string& name, const std::string& fallback)
{
    constexpr unsigned char ContinuationMask = 0xC0, ContinuationBits = 0x80;
    std::size_t end = 0;
    for (int characters = 0; end < name.size(); ++end) {
        const bool starts =
            (static_cast<unsigned char>(name[end]) & ContinuationMask) != ContinuationBits;
        if (starts && characters++ == MaxLocationNameLength)
            break;
    }
    const std::size_t last = name.find_last_not_of(" \t", end == 0 ? 0 : end - 1);
    return last == std::string::npos || end == 0 ? fallback : name.substr(0, last + 1);
}

std::string ToLowerCase(const std::string& text)
{
    std::string out = text;
    const auto blank = out.find(' ');
    if (blank != std::string::npos && blank + 1 < out.size())
        out[blank + 1] = char(std::toupper(static_cast<unsigned char>(out[blank + 1])));
    return out;
}
