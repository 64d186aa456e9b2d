// SPDX-License-Identifier: GPL-3.0-or-later
// Reading and writing the settings in the store, with the stored text forms: longitudes
// "###.00", latitudes "##.00", time zones with a leading blank when not negative.
#pragma once

#include "model/settings.h"

#include <QLocale>

class SettingsStore;

// Reads every key in the program's order; a missing key takes its default. Throws
// SettingError when a stored text does not convert or a location's longitude, latitude or
// time zone lies out of range.
void LoadSettings(Settings& s, const SettingsStore& store);
// False when the store's file cannot be written.
[[nodiscard]] bool SaveSettings(const Settings& s, SettingsStore& store);
// The complete set of values a first start writes before reading them back. The clock is the
// locale's: 24-hour where it writes times so (German, Spanish), 12-hour in the C locale and
// where the locale writes AM/PM.
void WriteFirstStartValues(SettingsStore& store, const QLocale& locale = QLocale::system());

// The stored text forms.
std::string LongitudeText(double degrees);
std::string LatitudeText(double degrees);
std::string TimeZoneText(int hours);
