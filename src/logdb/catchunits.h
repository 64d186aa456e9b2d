// SPDX-License-Identifier: GPL-3.0-or-later
// Units of a catch's measures. The year file keeps lengths in whole millimetres, weights in
// whole grams and temperatures in degrees Celsius; the angler reads and types them in metric
// (cm, kg, °C) or imperial (in, lb, °F) units, chosen once. Plain C++: the windows, the
// command line and the statistics share these conversions and their messages.
#pragma once

#include <optional>
#include <string>
#include <string_view>

enum class UnitSystem { Metric, Imperial };

inline constexpr double MmPerInch = 25.4;
inline constexpr double GramsPerPound = 453.59237;

double CmToInches(double cm);
double InchesToCm(double inches);
double KgToPounds(double kg);
double PoundsToKg(double pounds);
double CelsiusToFahrenheit(double celsius);
double FahrenheitToCelsius(double fahrenheit);

// "cm" or "in", "kg" or "lb", "°C" or "°F".
std::string_view LengthUnit(UnitSystem units);
std::string_view WeightUnit(UnitSystem units);
std::string_view TemperatureUnit(UnitSystem units);

// The stored measure in the chosen units, as a number with one decimal ("31.5", "12.4"),
// or two for weights ("1.25", "2.76"); no unit name.
std::string LengthText(int mm, UnitSystem units);
std::string WeightText(int grams, UnitSystem units);
std::string TemperatureText(double celsius, UnitSystem units);

// The typed measure in its stored form. A blank entry is nothing and no error; a text that
// is not a number in the measure's range gives nothing and `why` says so, quoting it:
// "\"-3\" is not a length from 0 to 500 cm". `why` is empty when the value is good or blank.
std::optional<int> LengthFromText(std::string_view typed, UnitSystem units, std::string& why);
std::optional<int> WeightFromText(std::string_view typed, UnitSystem units, std::string& why);
std::optional<double> TemperatureFromText(std::string_view typed, UnitSystem units,
                                          std::string& why);
