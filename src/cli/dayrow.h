// One day's forecast as the command line prints it, gathered from the engine and the year
// day table. Hours are local clock hours as computed.
#pragma once

#include <optional>
#include <string>

struct DayRow {
    int Year = 0, Month = 0, Day = 0;
    double Sunrise = 0, Sunset = 0, SunTransit = 0;
    double CivilDawn = 0, CivilDusk = 0, NauticalDawn = 0, NauticalDusk = 0;
    double AstronomicalDawn = 0, AstronomicalDusk = 0, DayLength = 0;
    std::optional<double> Moonrise, MoonTransit, Moonset; // none when the day lacks the event
    double Major1 = 0, Major2 = 0;
    std::optional<double> Minor1, Minor2;
    std::string Major1Text, Major2Text, Minor1Text, Minor2Text, SunriseText, SunsetText;
    int IllumPercent = 0, Waxing = 0, Rating = 0, MoonAge = 0;
    int Phase = 0, Perigee = 0, Declination = 0, Season = 0;
    bool Holiday = false;
    std::string Text; // the day's event and holiday captions
    double SunAzimuth = 0, SunAltitude = 0, MoonAzimuth = 0, MoonAltitude = 0; // degrees
    double MoonParallacticAngle = 0;                                           // degrees
    double UtcOffsetHours = 0; // universal time = local clock time + this
};

// An event of the year: its kind ("new_moon", "perigee", ...), the instant as the year day
// table keeps it, the same instant in local clock time and the date of the day that holds it.
struct EventRow {
    std::string Type;
    double JD = 0;
    double LocalJD = 0;
    int Year = 0, Month = 0, Day = 0;
    std::string Caption;
};
