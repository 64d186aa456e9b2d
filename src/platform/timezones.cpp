// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/timezones.h"

#include <QDateTime>
#include <QTimeZone>

#include <algorithm>
#include <cmath>

namespace {
// Julian day of the Unix epoch, 1970-01-01 0h UT.
constexpr double UnixEpochJD = 2440587.5;
constexpr double SecondsPerDay = 86400.0;
} // namespace

double InstantJulianDay(const QDateTime& utc)
{
    return UnixEpochJD + double(utc.toSecsSinceEpoch()) / SecondsPerDay;
}

bool ZoneKnown(const std::string& name)
{
    return !name.empty() && QTimeZone::isTimeZoneIdAvailable(QByteArray::fromStdString(name));
}

std::vector<std::string> ZoneNames()
{
    std::vector<std::string> names;
    for (const QByteArray& id : QTimeZone::availableTimeZoneIds())
        names.push_back(id.toStdString());
    std::sort(names.begin(), names.end());
    return names;
}

ZoneRules LocationClock(const Location& loc) { return LoadZoneRules(loc.TzName); }

ZoneRules NamedZoneClock(const std::string& tzName, int& wholeHoursWest)
{
    ZoneRules clock = LoadZoneRules(tzName);
    if (!clock.Empty() && wholeHoursWest == 0) {
        const QTimeZone zone(QByteArray::fromStdString(tzName));
        const int east = zone.standardTimeOffset(QDateTime::currentDateTimeUtc());
        wholeHoursWest = -int(std::lround(east / 3600.0));
    }
    return clock;
}

std::string UnknownZoneOption(const std::string& tzName)
{
    if (ZoneKnown(tzName))
        return {};
    return "--tz: \"" + tzName +
           "\" is not a time zone this computer knows; give a tz database name such as "
           "Europe/Oslo or America/Chicago";
}

std::string UnknownZoneMessage(const Location& loc)
{
    return "The time zone \"" + loc.TzName + "\" of " + loc.Name +
           " is not known on this computer. Its times are shown in its whole-hour zone (" +
           std::to_string(loc.TimeZone) +
           " hours west of Greenwich) without daylight saving until a known zone is chosen "
           "in the location editor.";
}

ZoneRules LoadZoneRules(const std::string& name, int fromYear, int toYear)
{
    ZoneRules rules;
    if (!ZoneKnown(name))
        return rules;
    rules.Name = name;
    const QTimeZone zone(QByteArray::fromStdString(name));
    const QDateTime from(QDate(fromYear, 1, 1), QTime(0, 0), Qt::UTC);
    const QDateTime to(QDate(toYear + 1, 1, 1), QTime(0, 0), Qt::UTC);
    rules.Offsets.push_back({InstantJulianDay(from), zone.offsetFromUtc(from) / 60});
    for (const QTimeZone::OffsetData& t : zone.transitions(from, to))
        rules.Offsets.push_back({InstantJulianDay(t.atUtc), t.offsetFromUtc / 60});
    return rules;
}
