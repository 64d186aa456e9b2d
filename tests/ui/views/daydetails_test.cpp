// SPDX-License-Identifier: GPL-3.0-or-later
#include "astro/astronomy.h"
#include "astro/timebase.h"
#include "calendar/calendar.h"
#include "platform/timezones.h"
#include "ui/views/frmdetail.h"
#include "viewrules/daydetails.h"

#include <QDir>
#include <QLabel>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <array>
#include <cstdio>

namespace {

// Minutes of the day of a "hh:mm AM" text.
int ClockMinutes(const std::string& t)
{
    int h = 0, m = 0;
    char half[3] = {};
    EXPECT_EQ(std::sscanf(t.c_str(), "%d:%d %2s", &h, &m, half), 3) << t;
    return (h % 12 + (std::string(half) == "PM" ? 12 : 0)) * 60 + m;
}

// The two halves of an "a/b" value.
std::pair<std::string, std::string> Halves(const std::string& v)
{
    const auto slash = v.find('/');
    EXPECT_NE(slash, std::string::npos) << v;
    return {v.substr(0, slash), v.substr(slash + 1)};
}

void ExpectTimes(const std::string& value, int first, int second)
{
    const auto [a, b] = Halves(value);
    EXPECT_NEAR(ClockMinutes(a), first, 2) << value;
    EXPECT_NEAR(ClockMinutes(b), second, 2) << value;
}

void ExpectDegrees(const std::string& value, double first, double second)
{
    const auto [a, b] = Halves(value);
    EXPECT_NEAR(std::stod(a), first, 0.5) << value;
    EXPECT_NEAR(std::stod(b), second, 0.5) << value;
}

struct Place {
    Astronomy Engine;
    Calendar Cal;
    Place(double lonWest, double latNorth, std::int16_t zone, int year)
    {
        Engine.Site.SetPlace(lonWest, latNorth, zone);
        Engine.Site.HourInstant = 0.5 + Engine.Site.ZoneDays; // the hour bar at noon
        Cal.CurYear = std::int16_t(year);
        Cal.CurMonth = 6;
        Cal.SetYearTables(Engine, 0);
    }
};

// 20 June 2024 at Alexandria, standard time, against PyEphem 4.1.4 (no refraction; sunrise and
// sunset at -0:50 for the centre, twilights at -6, -12, -18; the Moon at -0:34 for the upper
// limb; the Moon's transit altitude as seen from the place; the illumination at noon): times within
// 2 minutes, angles within half a degree.
TEST(DoDetails, SummerDayAtAlexandriaAgreesWithEphem)
{
    Place p(92.42, 31.25, 6, 2024);
    const double jd = CivilToJd(2024, 6, 20);
    const DetailLines d = DoDetails(p.Engine, p.Cal, jd, true);
    ExpectTimes(d.at(17), 5 * 60 + 6, 19 * 60 + 17);
    ExpectTimes(d.at(5), 4 * 60 + 38, 19 * 60 + 45);
    ExpectTimes(d.at(6), 4 * 60 + 4, 20 * 60 + 19);
    ExpectTimes(d.at(7), 3 * 60 + 27, 20 * 60 + 56);
    EXPECT_NEAR(ClockMinutes(d.at(8)), 12 * 60 + 11, 2);
    EXPECT_NEAR(std::stod(d.at(13)), 82.188, 0.5);
    ExpectDegrees(d.at(14), 61.699, 298.302);
    ExpectTimes(d.at(15), 18 * 60 + 28, 3 * 60 + 31);
    EXPECT_NEAR(ClockMinutes(d.at(18)), 23 * 60 + 25, 2);
    EXPECT_NEAR(std::stod(d.at(20)), 30.229, 0.5);
    ExpectDegrees(d.at(22), 122.609, 239.100);
    EXPECT_EQ(d.at(24), "98%"); // 97.9 % lit at noon
    EXPECT_EQ(d.at(9),
              std::to_string(p.Cal.YearDays[std::size_t(DayOfYearOf(2024, 6, 20))].MoonAge));
    // The June solstice, 20:51 UT (PyEphem), at 02:51 PM at zone 6; no other event.
    const std::string solstice = d.at(FirstEventLabel);
    EXPECT_EQ(solstice.substr(0, 16), "Summer Solstice ");
    EXPECT_NEAR(ClockMinutes(solstice.substr(16)), 14 * 60 + 51, 3);
    for (int i = 1; i < EventLabelCount; ++i)
        EXPECT_EQ(d.at(FirstEventLabel + i), "");
}

// The day's events in words with their local times: the full moon of 22 June 2024 (01:08 UT,
// PyEphem) and the June solstice (20 June 20:51 UT) at Greenwich; the Earth's perihelion
// (3 January 00:39 UT) and aphelion (5 July 05:06 UT) from the US Naval Observatory's table,
// in 24-hour clock text.
TEST(DoDetails, EventLinesNameTheDaysEvents)
{
    Place p(0.0, 51.48, 0, 2024);
    const auto lineOf = [&](int month, int day, bool ampm, const std::string& start) {
        p.Cal.CurMonth = std::int16_t(month);
        p.Cal.SetYearTables(p.Engine, 0);
        const DetailLines d = DoDetails(p.Engine, p.Cal, CivilToJd(2024, month, day), ampm);
        for (int i = 0; i < EventLabelCount; ++i)
            if (d.at(FirstEventLabel + i).rfind(start, 0) == 0)
                return d.at(FirstEventLabel + i).substr(start.size());
        ADD_FAILURE() << "no line " << start << " on " << month << "/" << day;
        return std::string("00:00 AM");
    };
    EXPECT_NEAR(ClockMinutes(lineOf(6, 22, true, "Full Moon ")), 1 * 60 + 8, 3);
    EXPECT_NEAR(ClockMinutes(lineOf(6, 20, true, "Summer Solstice ")), 20 * 60 + 51, 3);
    EXPECT_NEAR(ClockMinutes(lineOf(1, 3, true, "Earth at Perihelion ")), 39, 30);
    const std::string aphelion = lineOf(7, 5, false, "Earth at Apehelion ");
    EXPECT_EQ(aphelion.size(), 5u) << aphelion; // "hh:nn"
    int h = 0, m = 0;
    ASSERT_EQ(std::sscanf(aphelion.c_str(), "%d:%d", &h, &m), 2);
    EXPECT_NEAR(h * 60 + m, 5 * 60 + 6, 30);
}

// Under Local Clock the seasons of 2025 (USNO: 20 March 09:01, 21 June 02:42, 22 September
// 18:19, 21 December 15:03 UT) read on the place's own clock at that instant (zoneinfo): summer
// and winter time, half-hour zones and the southern hemisphere.
TEST(DoDetails, SeasonsUnderLocalClockReadThePlacesClock)
{
    const struct {
        const char* Zone;
        double LonWest, LatNorth;
        std::int16_t WholeHours;
        std::array<const char*, 4> Shown; // local date and clock, spring to winter
    } places[] = {
        {"America/New_York",
         74.01,
         40.71,
         5,
         {"2025-03-20 05:01 AM", "2025-06-20 10:42 PM", "2025-09-22 02:19 PM",
          "2025-12-21 10:03 AM"}},
        {"Asia/Kolkata",
         -77.2,
         28.6,
         -5,
         {"2025-03-20 02:31 PM", "2025-06-21 08:12 AM", "2025-09-22 11:49 PM",
          "2025-12-21 08:33 PM"}},
        {"Australia/Sydney",
         -151.21,
         -33.87,
         -10,
         {"2025-03-20 08:01 PM", "2025-06-21 12:42 PM", "2025-09-23 04:19 AM",
          "2025-12-22 02:03 AM"}},
        {"America/St_Johns",
         52.71,
         47.56,
         4,
         {"2025-03-20 06:31 AM", "2025-06-21 12:12 AM", "2025-09-22 03:49 PM",
          "2025-12-21 11:33 AM"}},
    };
    for (const auto& place : places) {
        Place p(place.LonWest, place.LatNorth, place.WholeHours, 2025);
        p.Engine.Site.Clock = LoadZoneRules(place.Zone, 2024, 2026);
        p.Engine.Site.TimeFormats = LocalClockMode;
        p.Cal.SetYearTables(p.Engine, place.LatNorth < 0 ? -1 : 0);
        for (int season = 1; season <= 4; ++season) {
            int year = 0, month = 0, day = 0;
            char clock[9] = {};
            const char* shown = place.Shown[std::size_t(season - 1)];
            ASSERT_EQ(std::sscanf(shown, "%d-%d-%d %8[^\n]", &year, &month, &day, clock), 4);
            const DetailLines d = DoDetails(p.Engine, p.Cal, CivilToJd(year, month, day), true);
            const std::string line = SeasonNames[std::size_t(season)];
            std::string found;
            for (int i = 0; i < EventLabelCount; ++i)
                if (d.at(FirstEventLabel + i).starts_with(line))
                    found = d.at(FirstEventLabel + i);
            ASSERT_FALSE(found.empty()) << place.Zone << " " << shown;
            EXPECT_NEAR(ClockMinutes(found.substr(line.size())), ClockMinutes(clock), 1)
                << place.Zone << " " << shown << ": " << found;
        }
    }
}

// The window's caption in the platform's date order.
TEST(FrmDetail, Caption)
{
    EXPECT_EQ(DetailsCaption(2024, 3, 5, true, '/'), "Details for  3/5/2024");
    EXPECT_EQ(DetailsCaption(2024, 3, 5, false, '.'), "Details for 5.3.2024");

    FrmDetail w;
    w.SetDay(2024, 12, 31, {false, '-'});
    w.show();
    EXPECT_EQ(w.windowTitle(), "Details for 31-12-2024");
}

// A click anywhere beeps once and stops the timer; closing stops it too; a label's tip says so.
TEST(FrmDetail, ClickBeepsOnceAndHaltsTheTimer)
{
    FrmDetail w;
    int beeps = 0;
    w.Beep = [&beeps] { ++beeps; };
    w.ShowLines({{17, "05:06 AM/07:17 PM"}, {FirstEventLabel, "Full Moon 01:08 AM"}});
    w.show();
    w.Timer1->start();
    QTest::mouseClick(w.Label[17], Qt::LeftButton);
    EXPECT_EQ(beeps, 1);
    EXPECT_FALSE(w.Timer1->isActive());
    w.Timer1->start();
    QTest::mouseClick(&w, Qt::LeftButton, {}, QPoint(3, 3));
    EXPECT_EQ(beeps, 2);
    EXPECT_FALSE(w.Timer1->isActive());
    QTest::mouseMove(w.Label[17]);
    w.Label_MouseMove(17);
    EXPECT_EQ(w.Label[17]->toolTip(), "Click to Halt Timer");
    w.Timer1->start();
    w.CMDClose_Click();
    EXPECT_FALSE(w.Timer1->isActive());
    EXPECT_FALSE(w.isVisible());
    EXPECT_EQ(beeps, 2);
}

// The details of a day, for a person to look at.
TEST(FrmDetail, SavesScreenshot)
{
    Place p(92.42, 31.25, 6, 2024);
    FrmDetail w;
    w.SetDay(2024, 6, 20, {true, '/'});
    w.ShowLines(DoDetails(p.Engine, p.Cal, CivilToJd(2024, 6, 20), true));
    w.show();
    EXPECT_TRUE(w.grab().save(QDir(QUILLMERE_SCREENSHOTS).filePath("FrmDetail.png")));
}

} // namespace
