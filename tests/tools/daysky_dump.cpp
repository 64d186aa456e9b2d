// SPDX-License-Identifier: GPL-3.0-or-later
// Prints a year of the engine's day forecasts at one place, for the comparison with an
// independent ephemeris (tools/ephem_day_check.py). Arguments: latitude (north positive),
// longitude (west positive), zone (hours west), year, then local clock hours for the sky
// positions. Lines:
//   E date riseH riseFlag transitH transitFlag setH setFlag riseAz setAz
//     sunriseH sunsetH sunriseAz sunsetAz major1
//   S date hour sunAz sunAlt moonAz moonAlt     (degrees, azimuth from north)
#include "astro/astronomy.h"

#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {
constexpr double Deg = 57.29577951308232;

// The flag as the comparison reads it: 0 in the day, 2 on another.
int FlagNumber(EventFlag flag) { return flag == EventFlag::InDay ? 0 : 2; }
} // namespace

int main(int argc, char** argv)
{
    if (argc < 5) {
        std::fprintf(stderr, "usage: daysky_dump LAT LON_WEST ZONE YEAR [HOUR...]\n");
        return 2;
    }
    Astronomy a;
    a.Site.SetPlace(std::atof(argv[2]), std::atof(argv[1]), std::int16_t(std::atoi(argv[3])));
    a.Site.DstOffsetDays = 0.0;
    const int year = std::atoi(argv[4]);
    std::vector<double> hours;
    for (int i = 5; i < argc; ++i)
        hours.push_back(std::atof(argv[i]));

    const double first = CivilToJd(year, 1, 1), last = CivilToJd(year + 1, 1, 1);
    for (double jd = first; jd < last; jd += 1.0) {
        const CivilDate d = JdToCivil(jd);
        char date[16];
        std::snprintf(date, sizeof date, "%04d-%02d-%02d", d.Year, d.Month, int(d.Day));
        a.Site.HourInstant = 0.5 + a.Site.ZoneDays;
        a.ComputeSunDay(jd);
        a.ComputeDay(jd);
        const DayForecast& f = a.Forecast;
        const MoonEventRecord& m = f.MoonEvents;
        const RiseTransitSet& sun = f.SunEvents.Horizon;
        std::printf("E %s %.6f %d %.6f %d %.6f %d %.4f %.4f %.6f %.6f %.4f %.4f %.6f\n", date,
                    m.RiseTime, FlagNumber(m.RiseFlag), m.TransitTime, FlagNumber(m.TransitFlag),
                    m.SetTime, FlagNumber(m.SetFlag), m.RiseAzimuth * Deg, m.SetAzimuth * Deg,
                    sun.RiseTime, sun.SetTime, sun.RiseAzimuth * Deg, sun.SetAzimuth * Deg,
                    f.Major1);
        for (double h : hours) {
            a.Site.HourInstant = h / 24.0 + a.Site.ZoneDays;
            a.ComputeSunDay(jd);
            a.ComputeDay(jd);
            const SkyAtHour& sky = f.SkyPosition;
            std::printf("S %s %.4f %.4f %.4f %.4f %.4f\n", date, h, sky.SunAzimuth * Deg,
                        sky.SunAltitude * Deg, sky.MoonAzimuth * Deg, sky.MoonAltitude * Deg);
        }
    }
    return 0;
}
