// SPDX-License-Identifier: GPL-3.0-or-later
#include "logdb/catchunits.h"

#include <charconv>
#include <cmath>
#include <cstdio>

namespace {

constexpr double MmPerCm = 10.0;
constexpr double GramsPerKg = 1000.0;
constexpr double FahrenheitPerCelsius = 1.8;
constexpr double FahrenheitAtZeroCelsius = 32.0;

// The ranges a typed measure must lie in, in metric units.
constexpr double MostLengthCm = 500.0;
constexpr double MostWeightKg = 1000.0;
constexpr double ColdestWaterOrAir = -50.0;
constexpr double WarmestWaterOrAir = 60.0;

std::string Fixed(double value, int decimals)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.*f", decimals, value);
    return text;
}

std::string_view Trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::optional<double> NumberOfText(std::string_view text)
{
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(value))
        return std::nullopt;
    return value;
}

// A range's end as the messages show it: "500", "196.9".
std::string Shown(double value) { return Fixed(value, value == std::round(value) ? 0 : 1); }

// The typed number in [low, high] of the chosen units, or the message naming the range.
std::optional<double> Measure(std::string_view typed, std::string_view what, double low,
                              double high, std::string_view unit, std::string& why)
{
    why.clear();
    const std::string_view text = Trimmed(typed);
    if (text.empty())
        return std::nullopt;
    const std::optional<double> value = NumberOfText(text);
    if (value && *value >= low && *value <= high)
        return value;
    why = "\"" + std::string(text) + "\" is not a " + std::string(what) + " from " + Shown(low) +
          " to " + Shown(high) + " " + std::string(unit);
    return std::nullopt;
}

} // namespace

double CmToInches(double cm) { return cm * MmPerCm / MmPerInch; }
double InchesToCm(double inches) { return inches * MmPerInch / MmPerCm; }
double KgToPounds(double kg) { return kg * GramsPerKg / GramsPerPound; }
double PoundsToKg(double pounds) { return pounds * GramsPerPound / GramsPerKg; }
double CelsiusToFahrenheit(double celsius)
{
    return celsius * FahrenheitPerCelsius + FahrenheitAtZeroCelsius;
}
double FahrenheitToCelsius(double fahrenheit)
{
    return (fahrenheit - FahrenheitAtZeroCelsius) / FahrenheitPerCelsius;
}

std::string_view LengthUnit(UnitSystem units) { return units == UnitSystem::Metric ? "cm" : "in"; }
std::string_view WeightUnit(UnitSystem units) { return units == UnitSystem::Metric ? "kg" : "lb"; }
std::string_view TemperatureUnit(UnitSystem units)
{
    return units == UnitSystem::Metric ? "°C" : "°F";
}

std::string LengthText(int mm, UnitSystem units)
{
    const double cm = mm / MmPerCm;
    return Fixed(units == UnitSystem::Metric ? cm : CmToInches(cm), 1);
}

std::string WeightText(int grams, UnitSystem units)
{
    const double kg = grams / GramsPerKg;
    return Fixed(units == UnitSystem::Metric ? kg : KgToPounds(kg), 2);
}

std::string TemperatureText(double celsius, UnitSystem units)
{
    return Fixed(units == UnitSystem::Metric ? celsius : CelsiusToFahrenheit(celsius), 1);
}

std::optional<int> LengthFromText(std::string_view typed, UnitSystem units, std::string& why)
{
    const bool metric = units == UnitSystem::Metric;
    const double most = metric ? MostLengthCm : CmToInches(MostLengthCm);
    const std::optional<double> value = Measure(typed, "length", 0, most, LengthUnit(units), why);
    if (!value)
        return std::nullopt;
    return static_cast<int>(std::lround((metric ? *value : InchesToCm(*value)) * MmPerCm));
}

std::optional<int> WeightFromText(std::string_view typed, UnitSystem units, std::string& why)
{
    const bool metric = units == UnitSystem::Metric;
    const double most = metric ? MostWeightKg : KgToPounds(MostWeightKg);
    const std::optional<double> value = Measure(typed, "weight", 0, most, WeightUnit(units), why);
    if (!value)
        return std::nullopt;
    return static_cast<int>(std::lround((metric ? *value : PoundsToKg(*value)) * GramsPerKg));
}

std::optional<double> TemperatureFromText(std::string_view typed, UnitSystem units,
                                          std::string& why)
{
    if (units == UnitSystem::Metric)
        return Measure(typed, "temperature", ColdestWaterOrAir, WarmestWaterOrAir, "°C", why);
    const std::optional<double> value =
        Measure(typed, "temperature", CelsiusToFahrenheit(ColdestWaterOrAir),
                CelsiusToFahrenheit(WarmestWaterOrAir), "°F", why);
    return value ? std::optional(FahrenheitToCelsius(*value)) : std::nullopt;
}
