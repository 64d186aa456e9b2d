// SPDX-License-Identifier: GPL-3.0-or-later
// The astronomy engine. Positions come back as named places; the day's events, the forecast
// and the year's event times are left in named members that the caller reads right after the
// call, so one engine object serves one thread of work; a window, a list or the log filler may
// each own one.
#pragma once

#include "astro/dayforecast.h"
#include "astro/observer.h"
#include "astro/timebase.h"

#include <array>
#include <unordered_map>

struct Horizontal {
    double Azimuth = 0.0; // from north through east, [0, 2pi)
    double Altitude = 0.0;
};

struct EclipticPoint {
    double Longitude = 0.0; // radians
    double Latitude = 0.0;  // radians
    double Distance = 0.0;  // astronomical units
};

// The Sun's apparent place (Meeus ch. 25), radians and astronomical units.
struct SunPlace {
    double Lambda = 0.0; // longitude, [0, 2pi)
    double Beta = 0.0;   // latitude
    double R = 0.0;      // distance
    double Alpha = 0.0;  // right ascension, [0, 2pi)
    double Delta = 0.0;  // declination
};

// The Moon's apparent place (Meeus ch. 47) with its parallax and phase (ch. 48), radians.
struct MoonPlace {
    double Lambda = 0.0;        // longitude, [0, 2pi)
    double Beta = 0.0;          // latitude
    double Distance = 0.0;      // Delta, kilometres from the Earth's centre
    double Parallax = 0.0;      // pi, the equatorial horizontal parallax
    double IllumFraction = 0.0; // k
    double BrightLimb = 0.0;    // chi, the position angle of the bright limb, [0, 2pi)
    double Alpha = 0.0;         // right ascension, [0, 2pi)
    double Delta = 0.0;         // declination
    double Elongation = 0.0;    // psi, from the Sun
};

class Astronomy {
public:
    // Where and when: the current location's working values and the chosen hour.
    Observer Site;

    // ---- time base ----
    // Fraction of the day since 0h, as left by the last JulianDay0.
    double DayFraction = 0.0;

    // Julian day of the 0h preceding or at jd; sets DayFraction.
    double JulianDay0(double jd);
    // Greenwich mean sidereal time in hours, [0, 24) (Meeus ch. 12).
    double GreenwichSiderealHours(double jd);

    // ---- obliquity and coordinate conversions (Meeus ch. 13 and 22) ----
    struct Equatorial {
        double Alpha = 0.0; // right ascension, [0, 2pi)
        double Delta = 0.0; // declination
    };

    // Mean obliquity of the ecliptic in radians (Laskar, Meeus eq. 22.3).
    double MeanObliquity(double jd) const;
    // Ecliptic longitude and latitude to equatorial (Meeus eqs. 13.3, 13.4).
    static Equatorial EclipticToEquatorial(double lambda, double beta, double epsilon);

    // ---- nutation and the horizon (Meeus ch. 13, 14, 22, 48) ----
    double NutationLongitude = 0.0; // delta psi, radians
    double NutationObliquity = 0.0; // delta epsilon, radians
    double Obliquity = 0.0;         // obliquity in force for the last conversion

    // IAU 1980 nutation from all 63 terms of Table 22.A.
    void ComputeNutation(double jd);
    // Azimuth and altitude of (alpha, delta) at the place (degrees, west and north positive).
    Horizontal HorizontalPosition(double jd, double alpha, double delta, double latitudeDeg,
                                  double longitudeDeg);
    // The parallactic angle q (Meeus eq. 14.1).
    double ParallacticAngleNow(double jd, double alpha, double delta, double latitudeDeg,
                               double longitudeDeg);

    // ---- the Sun (Meeus ch. 25 with VSOP87) and the Moon (Meeus ch. 47, 48) ----
    // Each leaves the nutation and the obliquity of jd in force.
    SunPlace SunPosition(double jd);
    MoonPlace MoonPosition(double jd);
    // Geometric longitude and distance of the Sun, low precision (Meeus's Astronomical
    // Formulae for Calculators).
    static EclipticPoint SunLowPrecision(double jd);

    // ---- rising, transit and setting (Meeus ch. 15) ----
    // Local clock hours of the Moon's events, as left by the last MoonEventsForDay.
    double MoonRiseHour = 0.0, MoonTransitHour = 0.0, MoonSetHour = 0.0;

    // The Moon's events of the local day of jd in Forecast.MoonEvents.
    void MoonEventsForDay(double jd);
    // Whether the Moon's lower transit falls in the local day of jd (the day of the second
    // major period).
    bool MoonLowerTransitInDay(double jd);
    // The Sun's events of the local day of jd in Forecast.SunEvents.
    void SunEventsForDay(double jd);

    // ---- the day forecast ----
    DayForecast Forecast;
    int DaysComputed = 0; // ComputeDay calls so far: the windows' speed is measured by it
    // The Sun's events, texts, day length and sky position for the day at 0h jd.
    void ComputeSunDay(double jd);
    // The Moon's events, the majors and minors, phase and sky position for the day at 0h jd.
    void ComputeDay(double jd);
    // Majors and minors around the transit hour T (Major1Text is the caller's).
    void SetPeriods(double T);

    // ---- the year's events, local clock Julian days ----
    // Each list is in the order of its event codes in the year day table (code = index + 1).
    std::array<double, 4> PhaseTimes{};       // new, first quarter, full, last quarter
    std::array<double, 2> PerigeeTimes{};     // perigee, the apogee after it
    std::array<double, 2> DeclinationTimes{}; // greatest north, greatest south
    std::array<double, 4> SeasonTimes{};      // March equinox .. December solstice
    std::array<double, 2> EarthApsisTimes{};  // the Earth's perihelion and aphelion
    // Each takes the cycle number k of its chapter (whole k: the cycle's first event).
    void MoonPhases(double k);
    // Perigee, apogee and the greatest declinations are the extremes of this engine's own
    // Moon (MoonGeometricDistance, MoonPosition's declination) next to the instants of Meeus
    // ch. 50, 52.
    void PerigeeApogee(double k);
    void MaxDeclinations(double k);
    enum class MoonExtreme { Apsis, North, South };
    // The JDE of one such extreme: k of ch. 50 (whole perigee, + 0.5 apogee) or of ch. 52.
    double RefinedMoonExtreme(MoonExtreme kind, double k);
    void Seasons(double year);
    // The Earth's perihelion and aphelion of a year (Meeus ch. 38 with Table 38.A).
    void EarthApsides(int year);
    // The local clock Julian day of a dynamical instant (Delta-T, the zone, daylight saving).
    double LocalInstant(double jde) const;

private:
    // What one rise/transit/set search needs: 0h UT of the day, the place (degrees, west and
    // north positive), the body's apparent place at 0h of the days before, of and after the
    // day, the altitude h0 of its events, and the hours that turn local clock time into UT.
    struct EventSearch {
        double J0 = 0.0;
        double Longitude = 0.0;
        double Latitude = 0.0;
        Equatorial Yesterday{}, Today{}, Tomorrow{};
        double Altitude = 0.0;
        double ZoneHours = 0.0;
    };
    // Times in hours UT from J0, statuses for the local day that starts at J0 on the clock.
    RiseTransitSet FindEvents(const EventSearch& s);

    // Positions at 0h of recent days for the event drivers: consecutive days share two of their
    // three, so walking the days computes one new position of each body per day.
    struct DayPosition {
        double JD = 0.0; // 0 marks an empty entry
        Equatorial Place;
        double Parallax = 0.0;
    };
    struct DayPositionCache {
        std::array<DayPosition, 4> Entries{};
        std::size_t Next = 0;
    };
    DayPositionCache SunDays, MoonDays;
    // Refined Moon extremes by kind and cycle: they depend on no place, so the year tables of
    // every month, zone and place share them; cleared when a few years' worth have gathered.
    static constexpr std::size_t MoonExtremesKept = 1024;
    std::unordered_map<long long, double> MoonExtremes;
    const DayPosition& SunAtDay(double jd);
    const DayPosition& MoonAtDay(double jd);

    RiseTransitSet FindClockDayEvents(EventSearch s);
    double LocalHours(double J0, double utHours) const;
    RiseTransitSet InLocalClock(double J0, RiseTransitSet e) const;
    double ChosenInstant(double jd) const;
    EventSearch MoonSearch(double J0);
    EventSearch LowerTransitSearch(double J0);
    using SearchOfDay = EventSearch (Astronomy::*)(double J0);
    void SettleMoonEventsAtMidnight(double J0, RiseTransitSet& today, SearchOfDay search);
    SkyPoint SunSeenAt(double t);
    SkyPoint MoonSeenAt(double t);
    void SettleGrazing(const EventSearch& s, RiseTransitSet& e, const SkyAt& sky, double h0,
                       std::vector<SkyPoint>& track, const std::vector<double>& instants,
                       double from, double to);
    std::string Clock(double hours) const;

    // Local hour angle and latitude shared by the horizon and parallactic conversions.
    struct HourAngle {
        double H = 0.0;
        double Phi = 0.0;
    };
    HourAngle LocalHourAngle(double jd, double alpha, double latitudeDeg, double longitudeDeg,
                             double epsilon);
};

// The Earth's distance from the Sun in astronomical units (VSOP87 R series, Meeus ch. 32).
double EarthSunDistance(double jde);
// The Moon's geometric distance from the Earth's centre in kilometres, good to about half a
// kilometre where Table 47.A's is off by up to eight.
double MoonGeometricDistance(double jde);

// The altitude of a body as seen from the place, from its altitude h at the Earth's centre and
// its horizontal parallax (Meeus ch. 40, on a spherical Earth): the Moon's stands up to a
// degree lower. The Moon's rise and set are taken on it.
double TopocentricAltitude(double h, double parallax);

// 100 x the illuminated fraction, halves rounded to even.
std::int16_t IllumPercentOf(double fraction);

// Position angle of the Moon's bright limb (Meeus eq. 48.5).
double BrightLimbAngle(double alphaMoon, double deltaMoon, double alphaSun, double deltaSun);
