// SPDX-License-Identifier: GPL-3.0-or-later
// Sends the reminders of the locations that ask for them while the program runs: a timer
// checks the program's clock and notifies what fell due since the last check. Each location's
// plan holds the reminders of its today and tomorrow, made again when its date, its values or
// the time mode change.
#pragma once

#include "astro/observer.h"
#include "model/settings.h"
#include "platform/notifier.h"
#include "viewrules/reminders.h"

#include <QObject>
#include <QTimer>

#include <array>
#include <optional>

class ReminderService : public QObject {
    Q_OBJECT
public:
    // How often the clock is checked.
    static constexpr int CheckSeconds = 30;

    ReminderService(const Settings& settings, Notifier& notifier, QObject* parent = nullptr);
    // Starts the timer; the first check is made at once.
    void Start();
    // Sends what fell due since the last check (on the first, within one period of checks)
    // for events that have not begun yet. Returns how many were sent.
    int Check();
    // The notification of a reminder at the named place.
    static Notification Text(const DueReminder& r, const QString& place);

private:
    struct Planned {
        double AtUT = 0.0, StartUT = 0.0;
        DueReminder What;
    };
    struct Plan {
        Location Place;
        std::optional<Observer> Site; // the location's clock and place; empty until planned
        std::int16_t Southern = 0;
        std::int16_t TimeFormats = 0;
        std::int32_t DaylightBias = 0;
        double TodayJ0 = 0.0;
        std::vector<Planned> Due;
        std::optional<double> LastCheck; // UT Julian day
    };
    const Settings& Config;
    Notifier& Sender;
    QTimer Timer;
    std::array<Plan, LocationCount + 1> Plans{};

    int CheckLocation(int n, double nowUT);
    static void MakePlan(Plan& plan, double todayJ0);
};

// Whether any location asks for reminders.
bool AnyReminders(const Settings& settings);
