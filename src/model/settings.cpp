// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/settings.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>

namespace {
// A text setting tested as a boolean: "True"/"False" in any case, or a number (non-zero true).
bool TextIsTrue(const std::string& text)
{
    std::string t;
    for (char c : text)
        if (!std::isspace(static_cast<unsigned char>(c)))
            t += char(std::tolower(static_cast<unsigned char>(c)));
    if (t == "true")
        return true;
    char* end = nullptr;
    const double v = std::strtod(t.c_str(), &end);
    return !t.empty() && *end == '\0' && v != 0.0;
}
} // namespace

bool Settings::AmPm() const { return TextIsTrue(AMPM); }

bool Settings::ParallacticOn() const { return TextIsTrue(ParallacticAngle); }

std::int16_t Settings::DefaultLocation() const { return DefaultLocationNumber(DefLoc); }
