// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/settingsio.h"

#include "astro/observer.h"
#include "model/locationrules.h"
#include "platform/settingsstore.h"
#include "text/vbformat.h"

#include <QLocale>
#include <QString>

#include <cmath>
#include <cstdlib>
#include <limits>

namespace {

struct LocationDefaults {
    const char* Name;
    const char* Longitude;
    const char* Latitude;
    const char* TimeZone;
    const char* TzName; // written at first start only
};

// Used when a key is missing.
constexpr std::array<LocationDefaults, LocationCount> Defaults = {{
    {"Alexandria, LA", "92.42", "31.25", "6", "America/Chicago"},
    {"Miami, FL", "80.2", "25.77", "5", "America/New_York"},
    {"Los Angeles, CA", "118.25", "34.05", "8", "America/Los_Angeles"},
    {"Denver, CO", "105.00", "39.75", "7", "America/Denver"},
    {"Atlanta, GA", "84.79", "33.75", "5", "America/New_York"},
    {"Dallas, TX", "96.77", "32.77", "6", "America/Chicago"},
    {"Detroit, MI", "83.05", "42.33", "5", "America/Detroit"},
    {"Pittsburg, PA", "80.00", "40.44", "5", "America/New_York"},
    {"Rochester, NY", "77.61", "43.16", "5", "America/New_York"},
    {"Seattle, Wa", "122.34", "47.61", "8", "America/Los_Angeles"},
}};

QString Key(const char* prefix, int n, const char* field)
{
    return QString("%1%2%3").arg(prefix).arg(n).arg(field);
}

std::string Read(const SettingsStore& store, const QString& key, const char* fallback)
{
    return store.Read(key, QString::fromUtf8(fallback)).toStdString();
}

double ToDouble(const std::string& key, const std::string& text)
{
    const std::string trimmed = QString::fromStdString(text).trimmed().toStdString();
    char* end = nullptr;
    const double v = std::strtod(trimmed.c_str(), &end);
    if (trimmed.empty() || *end != '\0' || !std::isfinite(v))
        throw SettingError{key, text, "a number"};
    return v;
}

template <typename Int> Int ToInt(const std::string& key, const std::string& text)
{
    const double v = std::nearbyint(ToDouble(key, text)); // half to even, as CInt
    if (v < double(std::numeric_limits<Int>::min()) || v > double(std::numeric_limits<Int>::max()))
        throw SettingError{key, text, "a whole number in range"};
    return static_cast<Int>(v);
}

bool ToBool(const std::string& key, const std::string& text)
{
    const QString t = QString::fromStdString(text).trimmed();
    if (t.compare("True", Qt::CaseInsensitive) == 0)
        return true;
    if (t.compare("False", Qt::CaseInsensitive) == 0)
        return false;
    try {
        return ToDouble(key, text) != 0.0;
    } catch (const SettingError&) {
        throw SettingError{key, text, "True or False"};
    }
}

// Coordinates pass through their stored form, so they are held with two decimals. A value
// beyond `limit` degrees either way is reported like one that does not convert.
double Degrees(const std::string& key, const std::string& text, const char* pattern, double limit)
{
    const double v = ToDouble(key, text);
    if (std::fabs(v) > limit)
        throw SettingError{key, text,
                           "a number of degrees from -" + std::to_string(int(limit)) + " to " +
                               std::to_string(int(limit))};
    return ToDouble(key, VbFormat(v, pattern) + "0");
}

// Time zones are whole hours west of Greenwich, -12 to 12.
std::int16_t ZoneHours(const std::string& key, const std::string& text)
{
    const auto v = ToInt<std::int16_t>(key, text);
    if (v < -12 || v > 12)
        throw SettingError{key, text, "a time zone from -12 to 12 hours"};
    return v;
}

std::string K(const QString& key) { return key.toStdString(); }

std::string BoolText(bool b) { return b ? "True" : "False"; }

// A location's reminders; files written before reminders existed have none.
ReminderOption ReadReminder(const SettingsStore& store, int n)
{
    ReminderOption r;
    const auto flag = [&](const char* field) {
        const QString key = Key("Usr", n, field);
        return ToBool(K(key), Read(store, key, "False"));
    };
    r.Majors = flag("RemindMajor");
    r.Minors = flag("RemindMinor");
    r.SunEvents = flag("RemindSun");
    r.BestDaysOnly = flag("RemindBest");
    const QString lead = Key("Usr", n, "RemindLead");
    r.LeadMinutes = ToInt<std::int16_t>(
        K(lead), Read(store, lead, std::to_string(DefaultReminderLead).c_str()));
    if (r.LeadMinutes < ShortestReminderLead || r.LeadMinutes > LongestReminderLead)
        throw SettingError{K(lead), std::to_string(r.LeadMinutes),
                           "minutes from " + std::to_string(ShortestReminderLead) + " to " +
                               std::to_string(LongestReminderLead)};
    return r;
}

void WriteReminder(SettingsStore& store, int n, const ReminderOption& r)
{
    const auto write = [&](const char* field, const std::string& text) {
        store.Write(Key("Usr", n, field), QString::fromStdString(text));
    };
    write("RemindMajor", BoolText(r.Majors));
    write("RemindMinor", BoolText(r.Minors));
    write("RemindSun", BoolText(r.SunEvents));
    write("RemindBest", BoolText(r.BestDaysOnly));
    write("RemindLead", std::to_string(r.LeadMinutes));
}

// The catches' units: "Metric" or "Imperial" as stored, or when not stored yet, as the
// computer's locale measures.
bool ReadImperialUnits(const SettingsStore& store)
{
    const bool metric = QLocale::system().measurementSystem() == QLocale::MetricSystem;
    const std::string text = Read(store, "Units", metric ? "Metric" : "Imperial");
    if (text != "Metric" && text != "Imperial")
        throw SettingError{"Units", text, "Metric or Imperial"};
    return text == "Imperial";
}

} // namespace

std::string LongitudeText(double degrees) { return VbFormat(degrees, "###.00"); }
std::string LatitudeText(double degrees) { return VbFormat(degrees, "##.00"); }
std::string TimeZoneText(int hours) { return (hours >= 0 ? " " : "") + std::to_string(hours); }

void LoadSettings(Settings& s, const SettingsStore& store)
{
    s.AMPM = Read(store, "AMPM", "True");
    s.DefLoc = Read(store, "DefLoc", "1");
    s.MoonColor = ToInt<std::int32_t>(
        "MoonColor", Read(store, "MoonColor", std::to_string(DefaultMoonColor).c_str()));
    s.HemiSphere = Read(store, "HemiSphere", "North");
    s.Graphic = ToInt<std::int16_t>("Graphic", Read(store, "Graphic", "0"));
    s.MouseClick = ToBool("MouseClick", Read(store, "MouseClick", "True"));
    s.ParallacticAngle = Read(store, "ParallacticAngle", "True");
    s.TimeFormats = ToInt<std::int16_t>("TimeFormats", Read(store, "TimeFormats", "1"));
    s.FormTop = Read(store, "FormTop", "300");
    s.FormLeft = ToInt<std::int16_t>("FormLeft", Read(store, "FormLeft", "300"));
    s.ImperialUnits = ReadImperialUnits(store);
    for (int n = 1; n <= LocationCount; ++n) {
        const LocationDefaults& d = Defaults[std::size_t(n - 1)];
        Location& loc = s.Locations[std::size_t(n)];
        const QString lon = Key("Usr", n, "Long"), lat = Key("Usr", n, "Lat");
        const QString tz = Key("Usr", n, "TZ"), name = Key("Usr", n, "Name");
        const QString zone = Key("Usr", n, "Zone");
        loc.Longitude = Degrees(K(lon), Read(store, lon, d.Longitude), "###.00", 180.0);
        loc.Latitude = Degrees(K(lat), Read(store, lat, d.Latitude), "##.00", 90.0);
        loc.TimeZone = ZoneHours(K(tz), Read(store, tz, d.TimeZone));
        // A name typed into the file by hand may be of any length; the menus take a bounded one.
        loc.Name = BoundedLocationName(Read(store, name, d.Name), d.Name);
        // Files written before locations had zones have no such key: no zone.
        loc.TzName = Read(store, zone, "");
        loc.Reminder = ReadReminder(store, n);
    }
}

bool SaveSettings(const Settings& s, SettingsStore& store)
{
    auto write = [&store](const QString& key, const std::string& text) {
        store.Write(key, QString::fromStdString(text));
    };
    for (int n = 1; n <= LocationCount; ++n) {
        const Location& loc = s.Locations[std::size_t(n)];
        write(Key("Usr", n, "Long"), LongitudeText(loc.Longitude));
        write(Key("Usr", n, "Lat"), LatitudeText(loc.Latitude));
        write(Key("Usr", n, "TZ"), TimeZoneText(loc.TimeZone));
        write(Key("Usr", n, "Name"), loc.Name);
        write(Key("Usr", n, "Zone"), loc.TzName);
        WriteReminder(store, n, loc.Reminder);
    }
    write("FormTop", s.FormTop);
    write("FormLeft", std::to_string(s.FormLeft));
    write("HemiSphere", s.HemiSphere);
    write("MoonColor", std::to_string(s.MoonColor));
    write("DefLoc", s.DefLoc);
    write("AMPM", s.AMPM);
    write("Graphic", std::to_string(s.Graphic));
    write("MouseClick", BoolText(s.MouseClick));
    write("ParallacticAngle", s.ParallacticAngle);
    write("TimeFormats", std::to_string(s.TimeFormats));
    write("Units", s.ImperialUnits ? "Imperial" : "Metric");
    return store.Flush();
}

namespace {
bool WritesAmPm(const QLocale& locale)
{
    return locale.language() == QLocale::C ||
           locale.timeFormat(QLocale::ShortFormat).contains(QLatin1Char('a'), Qt::CaseInsensitive);
}
} // namespace

void WriteFirstStartValues(SettingsStore& store, const QLocale& locale)
{
    for (int n = 1; n <= LocationCount; ++n) {
        const LocationDefaults& d = Defaults[std::size_t(n - 1)];
        store.Write(Key("Usr", n, "Long"), n == 5 ? "84.39" : d.Longitude);
        store.Write(Key("Usr", n, "Lat"), d.Latitude);
        store.Write(Key("Usr", n, "TZ"),
                    QString::fromStdString(TimeZoneText(std::atoi(d.TimeZone))));
        store.Write(Key("Usr", n, "Name"), n == 8    ? "Pittsburgh, PA"
                                           : n == 10 ? "Seattle, WA"
                                                     : d.Name);
        store.Write(Key("Usr", n, "Zone"), d.TzName);
    }
    store.Write("HemiSphere", "North");
    store.Write("MoonColor", QString::number(DefaultMoonColor));
    store.Write("DefLoc", "1");
    store.Write("AMPM", WritesAmPm(locale) ? "True" : "False");
    store.Write("Graphic", "0");
    store.Write("MouseClick", "True");
    store.Write("ParallacticAngle", "True");
    store.Write("TimeFormats", QString::number(LocalClockMode));
    store.Flush();
}
