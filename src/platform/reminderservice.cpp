// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/reminderservice.h"

#include "astro/astronomy.h"
#include "astro/timebase.h"
#include "calendar/calendar.h"
#include "model/currentlocation.h"
#include "platform/clock.h"
#include "platform/timezones.h"

#include <QLocale>
#include <QTime>

#include <cmath>

namespace {
constexpr int MillisecondsPerSecond = 1000;

// The local clock Julian day at 0h of the day that holds the local instant.
double DayStart(double local) { return std::floor(local - 0.5) + 0.5; }

// The locale's short clock; the C locale's would show seconds, which reminders never have.
QString LocaleClock(const std::string& clock24)
{
    const QLocale locale;
    const QString format = locale.language() == QLocale::C
                               ? QStringLiteral("HH:mm")
                               : locale.timeFormat(QLocale::ShortFormat);
    return locale.toString(
        QTime::fromString(QString::fromStdString(clock24), QStringLiteral("HH:mm")), format);
}
} // namespace

bool AnyReminders(const Settings& settings)
{
    return std::any_of(settings.Locations.begin() + 1, settings.Locations.end(),
                       [](const Location& loc) { return loc.Reminder.Any(); });
}

ReminderService::ReminderService(const Settings& settings, Notifier& notifier, QObject* parent)
    : QObject(parent), Config(settings), Sender(notifier)
{
    Timer.setInterval(CheckSeconds * MillisecondsPerSecond);
    connect(&Timer, &QTimer::timeout, this, &ReminderService::Check);
}

void ReminderService::Start()
{
    Timer.start();
    Check();
}

int ReminderService::Check()
{
    const double nowUT = InstantJulianDay(Clock::Now());
    int sent = 0;
    for (int n = 1; n <= LocationCount; ++n)
        sent += CheckLocation(n, nowUT);
    return sent;
}

int ReminderService::CheckLocation(int n, double nowUT)
{
    Plan& plan = Plans[std::size_t(n)];
    const Location& place = Config.Locations[std::size_t(n)];
    if (!place.Reminder.Any()) {
        plan = Plan{};
        return 0;
    }
    const bool sameValues = plan.Place == place && plan.TimeFormats == Config.TimeFormats &&
                            plan.DaylightBias == Config.DaylightBias && plan.Site;
    if (!sameValues) {
        Settings at = Config;
        at.CurLoc = std::int16_t(n);
        CurrentLocation here;
        Observer site;
        ApplyLocationValues(at, here, site, LocationClock(place));
        plan.Site = site;
        plan.Southern = here.SouthernHemisphere;
        plan.Place = place;
        plan.TimeFormats = Config.TimeFormats;
        plan.DaylightBias = Config.DaylightBias;
    }
    const double today = DayStart(plan.Site->LocalOf(nowUT));
    if (!sameValues || today != plan.TodayJ0)
        MakePlan(plan, today);

    const double previous = plan.LastCheck.value_or(nowUT - double(CheckSeconds) / SecondsPerDay);
    plan.LastCheck = nowUT;
    int sent = 0;
    const QString name = QString::fromStdString(place.Name);
    for (const Planned& p : plan.Due)
        if (p.AtUT > previous && p.AtUT <= nowUT && nowUT < p.StartUT)
            sent += Sender.Send(Text(p.What, name)) ? 1 : 0;
    return sent;
}

void ReminderService::MakePlan(Plan& plan, double todayJ0)
{
    Astronomy engine;
    engine.Site = *plan.Site;
    Calendar cal;
    std::vector<ReminderDay> days;
    for (const double j0 : {todayJ0, todayJ0 + 1.0}) {
        const CivilDate d = JdToCivil(j0);
        days.push_back(ReminderDayAt(engine, cal, plan.Southern, d.Year, d.Month, d.Day));
    }
    plan.TodayJ0 = todayJ0;
    plan.Due.clear();
    for (const DueReminder& r : ScheduleReminders(days, plan.Place.Reminder))
        plan.Due.push_back({engine.Site.InstantOf(r.At), engine.Site.InstantOf(r.Start), r});
}

Notification ReminderService::Text(const DueReminder& r, const QString& place)
{
    const QString start = LocaleClock(r.StartClock), end = LocaleClock(r.EndClock);
    Notification n;
    switch (r.Event) {
    case ReminderEvent::MajorPeriod:
        n.Summary = tr("Major period at %1").arg(start);
        break;
    case ReminderEvent::MinorPeriod:
        n.Summary = tr("Minor period at %1").arg(start);
        break;
    case ReminderEvent::Sunrise:
        n.Summary = tr("Sunrise at %1").arg(start);
        break;
    case ReminderEvent::Sunset:
        n.Summary = tr("Sunset at %1").arg(start);
        break;
    }
    const bool period =
        r.Event == ReminderEvent::MajorPeriod || r.Event == ReminderEvent::MinorPeriod;
    n.Body = period ? tr("%1: from %2 to %3").arg(place, start, end) : place;
    // The legend's names of the ratings 1 to 4.
    const std::array<QString, 4> ratings = {tr("Fair"), tr("Good"), tr("V.Good"), tr("Best")};
    if (r.Rating >= 1 && r.Rating <= BestDayRating)
        n.Body += QLatin1Char('\n') + tr("Day rating: %1").arg(ratings[std::size_t(r.Rating - 1)]);
    return n;
}
