// SPDX-License-Identifier: GPL-3.0-or-later
#include "viewrules/daygraphdata.h"

#include "astro/astronomy.h"
#include "astro/mathutil.h"
#include "calendar/calendar.h"
#include "text/vbformat.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double RadToDeg = 57.29577951308238;
constexpr double Bias = 0.0; // hours the line is shifted by
constexpr std::uint32_t Red = 0x0000FF, LightGreen = 0x80FF80, White = 0xFFFFFF;

struct Span {
    double X0, X1;
};
using Spans = std::vector<Span>;

double Place(double hours) { return hours / 24.0 * TimeLineWidth; }

// The parts of the day when the Sun stands above the altitude of row r of the event table
// (sunrise, civil, nautical, astronomical): none when it never climbs that high, all day when
// it never sinks that low, else from the dawn to the dusk, split at midnight when the dusk
// of the evening before falls after midnight.
Spans AboveRow(const SunEventTable& s, SunRow r, SunAltitudeRange range)
{
    static constexpr std::array<double, 4> altitude = {-50.0 / 60.0, -6.0, -12.0, -18.0};
    const double h = altitude[std::size_t(r)] * DegToRad;
    if (range.Highest < h)
        return {};
    if (range.Lowest > h)
        return {{0.0, TimeLineWidth}};
    const double dawn = Place(s[r].RiseTime), dusk = Place(s[r].SetTime);
    if (dawn <= dusk)
        return {{dawn, dusk}};
    return {{0.0, dusk}, {dawn, TimeLineWidth}};
}

// a without b, for spans that each lie in order within the day.
Spans Without(const Spans& a, const Spans& b)
{
    Spans out;
    for (Span piece : a) {
        for (const Span& cut : b) {
            if (cut.X1 <= piece.X0 || cut.X0 >= piece.X1)
                continue;
            if (cut.X0 > piece.X0)
                out.push_back({piece.X0, cut.X0});
            piece.X0 = std::max(piece.X0, cut.X1);
        }
        if (piece.X1 > piece.X0)
            out.push_back(piece);
    }
    return out;
}

// The band's edge its tool tip names: the dawn of a morning band, the dusk of an evening one,
// or the other end where the band runs into midnight.
double EdgeOf(const Span& p, double noonX)
{
    const bool morning = p.X1 <= noonX;
    if (morning)
        return p.X0 > 0.0 ? p.X0 : p.X1;
    return p.X1 < TimeLineWidth ? p.X1 : p.X0;
}

void AddTwilights(DayGraphSeries& g, const DayForecast& f, SunAltitudeRange range)
{
    // Each twilight's band: where the Sun stands above its altitude but below the next
    // brighter row's.
    struct Kind {
        SunRow Row, Brighter;
        const char* Name;
        std::uint32_t Color;
    };
    static constexpr std::array<Kind, 3> kinds = {
        {{SunRow::Civil, SunRow::Horizon, " Civil Twilight ", 0xFFC0C0},
         {SunRow::Nautical, SunRow::Civil, " Nautical Twilight ", 0xFF8080},
         {SunRow::Astronomical, SunRow::Nautical, " Astronomical Twilight ", 0xFF0000}}};
    const double noonX = Place(f.SunEvents.Horizon.TransitTime);
    for (const Kind& k : kinds)
        for (const Span& p :
             Without(AboveRow(f.SunEvents, k.Row, range), AboveRow(f.SunEvents, k.Brighter, range)))
            g.Twilights.push_back({p.X0, p.X1, k.Color, k.Name, EdgeOf(p, noonX)});
}

void AddPeriods(DayGraphSeries& g, const DayForecast& f)
{
    for (double major : {f.Major1, f.Major2})
        g.Bars.push_back({AdjForBias(Place(major)), Red, "Major"});
    for (auto [minor, text] : {std::pair{f.Minor1, &f.Minor1Text}, {f.Minor2, &f.Minor2Text}})
        if (*text != "*******")
            g.Bars.push_back({AdjForBias(Place(minor)), LightGreen, "Minor"});
    const MoonEventRecord& m = f.MoonEvents;
    if (m.RiseFlag == EventFlag::InDay)
        g.MoonMarks.push_back({Place(m.RiseTime), White, "Rise"});
    if (m.TransitFlag == EventFlag::InDay)
        g.MoonMarks.push_back({Place(m.TransitTime), White, "Transit"});
    if (m.SetFlag == EventFlag::InDay)
        g.MoonMarks.push_back({Place(m.SetTime), White, "Set"});
}

std::string EventClock(double jd) { return VbFormatDate(jd - SerialEpochJD, "hh:mm AMPM"); }

// The event's text with its clock time, placed on the line at that time.
void AddEvent(DayGraphSeries& g, const std::string& name, double jd)
{
    const double serial = jd - SerialEpochJD;
    g.EventTexts.push_back(name + EventClock(jd));
    g.EventX.push_back(AdjForBias(Place((serial - std::floor(serial)) * 24.0)));
}

void AddEventTexts(DayGraphSeries& g, const DayMarks& day)
{
    if (day.Perigee == 1 || day.Perigee == 2)
        AddEvent(g, day.Perigee == 1 ? "Perigee " : "Apogee ", day.PerigeeJD);
    if (day.Declination == 1 || day.Declination == 2)
        AddEvent(g, day.Declination == 1 ? "Max North " : "Max South ", day.DeclinationJD);
}

} // namespace

SunAltitudeRange SunAltitudesOfDay(Astronomy& engine, double jd)
{
    const Observer& o = engine.Site;
    const double delta = engine.SunPosition(o.InstantOf(jd + 0.5)).Delta;
    const double phi = o.CurLatitude * DegToRad;
    // At the upper and the lower meridian passage.
    return {ArcSin(std::sin(phi) * std::sin(delta) - std::cos(phi) * std::cos(delta)),
            ArcSin(std::sin(phi) * std::sin(delta) + std::cos(phi) * std::cos(delta))};
}

DayGraphSeries DrawTimes(const DayForecast& f, const DayMarks& day, SunAltitudeRange range)
{
    DayGraphSeries g;
    for (const Span& p : AboveRow(f.SunEvents, SunRow::Horizon, range))
        g.Daylight.push_back({p.X0, p.X1, 0xA0FFFF, " Daylight ", p.X0});
    g.SunriseX = Place(f.SunEvents.Horizon.RiseTime);
    g.SunsetX = Place(f.SunEvents.Horizon.SetTime);
    AddTwilights(g, f, range);
    AddPeriods(g, f);
    for (int h = 1; h <= 23; ++h)
        g.HourTicks.push_back(Place(h));
    AddEventTexts(g, day);
    return g;
}

double AdjBiasBack(double x)
{
    return WrapInto(x / TimeLineWidth * 24.0 - Bias, 24.0) + 15.0 / 1440.0;
}

double AdjForBias(double x) { return Place(WrapInto(x / TimeLineWidth * 24.0 + Bias, 24.0)); }

std::string DayPartTip(const DayGraphSeries& s, double x, bool ampm)
{
    const auto within = [x](const GraphBand& b) { return x >= b.X0 && x < b.X1; };
    const auto clock = [ampm](double place) { return FormatClock(0, AdjBiasBack(place), ampm); };
    for (const GraphBand& b : s.Twilights)
        if (within(b))
            return b.Name + clock(b.EdgeX) + " ";
    for (const GraphBand& b : s.Daylight)
        if (within(b))
            return b.X1 - b.X0 >= TimeLineWidth
                       ? std::string(" Daylight ")
                       : " Sunrise " + clock(s.SunriseX) + ", Sunset " + clock(s.SunsetX) + " ";
    return " Night ";
}

SkyReadout GetPicData(Astronomy& engine, double jd)
{
    const Observer& o = engine.Site;
    const double ut = o.InstantOf(jd);
    SkyReadout r;
    const SunPlace sun = engine.SunPosition(ut);
    Horizontal h =
        engine.HorizontalPosition(ut, sun.Alpha, sun.Delta, o.CurLatitude, o.CurLongitude);
    r.SunAzimuth = h.Azimuth * RadToDeg;
    r.SunElevation = h.Altitude * RadToDeg;
    const MoonPlace moon = engine.MoonPosition(ut);
    h = engine.HorizontalPosition(ut, moon.Alpha, moon.Delta, o.CurLatitude, o.CurLongitude);
    r.MoonAzimuth = h.Azimuth * RadToDeg;
    r.MoonElevation = TopocentricAltitude(h.Altitude, moon.Parallax) * RadToDeg;
    return r;
}
