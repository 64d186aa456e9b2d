// SPDX-License-Identifier: GPL-3.0-or-later
// One day's forecast as the command line prints it, gathered from the engine and the year
// day table. The command line reports what happens in the local day: an event carries its
// time only when it falls in that day, and otherwise says why it has none.
#pragma once

#include <optional>
#include <string>

// Happens: the event falls in the local day. Above, Below: the body stays above or below the
// event's altitude all day. None: the event falls on another day.
enum class EventStatus { Happens, Above, Below, None };

struct DayEvent {
    std::optional<double> Hours; // local clock hours, only when the event happens
    EventStatus Status = EventStatus::None;

    static DayEvent At(double hours) { return {hours, EventStatus::Happens}; }
};

// The clock of one local day: universal time = local clock time + Before until the clock hour
// Change, + After from then on. On a day whose clock does not change the two are equal and
// Change is 24. A clock time that the change skips or shows twice is read on the clock before
// the change (its first showing), as the tz database's readers do by default.
struct DayClock {
    double Before = 0, After = 0; // hours
    double Change = 24;           // clock hours

    double OffsetAt(double clockHours) const { return clockHours < Change ? Before : After; }
};

struct DayRow {
    int Year = 0, Month = 0, Day = 0;
    DayEvent Sunrise, Sunset, SunTransit;
    DayEvent CivilDawn, CivilDusk, NauticalDawn, NauticalDusk;
    DayEvent AstronomicalDawn, AstronomicalDusk;
    std::optional<double> DayLength; // hours of the local day with the Sun above the horizon
    DayEvent Moonrise, MoonTransit, Moonset;
    // Near the poles the Moon can rise or set a second time in one local day.
    DayEvent Moonrise2, Moonset2;
    DayEvent Major1, Major2, Minor1, Minor2;
    std::string Major1Text, Major2Text, Minor1Text, Minor2Text, SunriseText, SunsetText;
    int IllumPercent = 0, Waxing = 0, Rating = 0, MoonAge = 0;
    int Phase = 0, Perigee = 0, Declination = 0, Season = 0;
    bool Holiday = false;
    std::string Text; // the day's event and holiday captions
    double SunAzimuth = 0, SunAltitude = 0, MoonAzimuth = 0, MoonAltitude = 0; // degrees
    double MoonParallacticAngle = 0;                                           // degrees
    double UtcOffsetHours = 0; // universal time = local clock time + this, at noon
    DayClock Clock;            // the offsets through the whole day
};

// An event of the year: its kind ("new_moon", "perigee", ...), the instant in universal time,
// the same instant in local clock time and the local date that holds it.
struct EventRow {
    std::string Type;
    double JD = 0;
    double LocalJD = 0;
    int Year = 0, Month = 0, Day = 0;
    std::string Caption;
};
