// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/currentlocation.h"
#include "platform/settingsio.h"
#include "platform/settingsstore.h"

#include <gtest/gtest.h>

// The caption, the observer's zone, daylight saving and clock, and the hemisphere of a
// location: east and south by their letters, zero west and north, and no mode text when the
// time format is neither standard time nor daylight saving.
TEST(CurrentLocation, CaptionZoneAndHemisphereOfALocation)
{
    const struct {
        Location Where;
        std::int16_t TimeFormats;
        const char *Caption, *Hemisphere;
        double ZoneHours, DstHours;
    } cases[] = {
        {{"Alexandria, LA", 92.42, 31.25, 6, ""},
         1,
         "Alexandria, LA  Long=92.42 W Lat=31.25 N TimeZone= 6  Time=STD Hemisphere=Northern ",
         "North",
         6.0,
         0.0},
        {{"Hobart", -147.33, -42.88, -10, ""},
         0,
         "Hobart  Long=147.33 E Lat=42.88 S TimeZone=-10  Time=DST Hemisphere=Southern ",
         "South",
         -10.0,
         -1.0},
        {{"Greenwich", 0.0, 0.0, 0, ""},
         1,
         "Greenwich  Long=0.00 W Lat=0.00 N TimeZone= 0  Time=STD Hemisphere=Northern ",
         "North",
         0.0,
         0.0},
        {{"East", -0.5, 0.5, 0, ""},
         2,
         "East  Long=0.50 E Lat=0.50 N TimeZone= 0  Time= Hemisphere=Northern ",
         "North",
         0.0,
         0.0},
    };
    SettingsStore store(QStringLiteral("LocationTest"));
    store.DeleteAll();
    for (const auto& c : cases) {
        Settings s;
        LoadSettings(s, store);
        s.Locations[3] = c.Where;
        s.CurLoc = 3;
        s.TimeFormats = c.TimeFormats;
        s.DaylightBias = -60;
        s.AMPM = "False";
        CurrentLocation cur;
        Observer site;
        ApplyLocationValues(s, cur, site);
        EXPECT_EQ(cur.LocationCaption, c.Caption);
        EXPECT_EQ(s.HemiSphere, c.Hemisphere) << c.Caption;
        EXPECT_EQ(cur.SouthernHemisphere, c.Where.Latitude < 0 ? -1 : 0) << c.Caption;
        EXPECT_NEAR(site.ZoneDays * 24.0, c.ZoneHours, 1e-12) << c.Caption;
        EXPECT_NEAR(site.DstOffsetDays * 24.0, c.DstHours, 1e-12) << c.Caption;
        EXPECT_FALSE(site.AMPM) << c.Caption; // the chosen 24-hour clock is kept
    }
    EXPECT_EQ(LocationMenuCaption(1, "Alexandria, LA", false), "# 1 Alexandria, LA");
    EXPECT_EQ(LocationMenuCaption(10, "Seattle, WA", true), "# 10 Seattle, WA  [Def]");
}
