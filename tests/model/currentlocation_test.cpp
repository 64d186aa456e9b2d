// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/currentlocation.h"
#include "platform/settingsio.h"
#include "platform/settingsstore.h"

#include <gtest/gtest.h>

namespace {
Settings DefaultSettings()
{
    SettingsStore store(QStringLiteral("LocationTest"));
    store.DeleteAll();
    Settings s;
    LoadSettings(s, store);
    return s;
}
} // namespace

TEST(CurrentLocation, CaptionOfTheFirstDefaultLocation)
{
    Settings s = DefaultSettings();
    CurrentLocation cur;
    Observer site;
    ApplyLocationValues(s, cur, site);
    EXPECT_EQ(
        cur.LocationCaption,
        "Alexandria, LA  Long=92.42 W Lat=31.25 N TimeZone= 6  Time=STD Hemisphere=Northern ");
    EXPECT_DOUBLE_EQ(site.ZoneDays, 0.25);
    EXPECT_EQ(site.DstOffsetDays, 0.0);
    EXPECT_EQ(cur.SouthernHemisphere, 0);
    s.CurLoc = 2;
    ApplyLocationValues(s, cur, site);
    EXPECT_NE(cur.LocationCaption.find("Long=80.20 W"), std::string::npos);
    EXPECT_NE(cur.LocationCaption.find("TimeZone= 5 "), std::string::npos);
}

TEST(CurrentLocation, EasternSouthernLocationWithDaylightSaving)
{
    Settings s = DefaultSettings();
    s.Locations[3] = {"Hobart", -147.33, -42.88, -10, ""};
    s.CurLoc = 3;
    s.TimeFormats = 0;
    s.DaylightBias = -60;
    s.AMPM = "False";
    CurrentLocation cur;
    Observer site;
    ApplyLocationValues(s, cur, site);
    EXPECT_EQ(cur.LocationCaption,
              "Hobart  Long=147.33 E Lat=42.88 S TimeZone=-10  Time=DST Hemisphere=Southern ");
    EXPECT_NEAR(site.DstOffsetDays, -1.0 / 24.0, 1e-15);
    EXPECT_DOUBLE_EQ(site.ZoneDays, -10.0 / 24.0);
    EXPECT_EQ(s.HemiSphere, "South");
    EXPECT_EQ(cur.SouthernHemisphere, -1);
    EXPECT_FALSE(site.AMPM); // the chosen 24-hour clock is kept
}

TEST(CurrentLocation, SignsAtZeroAndHalfADegree)
{
    Settings s = DefaultSettings();
    s.Locations[1] = {"Greenwich", 0.0, 0.0, 0, ""};
    s.Locations[2] = {"East", -0.5, 0.5, 0, ""};
    CurrentLocation cur;
    Observer site;
    ApplyLocationValues(s, cur, site);
    EXPECT_NE(cur.LocationCaption.find("Long=0.00 W Lat=0.00 N TimeZone= 0 "), std::string::npos);
    EXPECT_EQ(s.HemiSphere, "North");
    s.CurLoc = 2;
    ApplyLocationValues(s, cur, site);
    EXPECT_NE(cur.LocationCaption.find("Long=0.50 E"), std::string::npos);
    s.TimeFormats = 2; // neither choice: the mode text stays empty
    ApplyLocationValues(s, cur, site);
    EXPECT_NE(cur.LocationCaption.find(" Time= Hemisphere="), std::string::npos);
}

TEST(CurrentLocation, MenuCaptionsMarkTheDefault)
{
    EXPECT_EQ(LocationMenuCaption(1, "Alexandria, LA", false), "# 1 Alexandria, LA");
    EXPECT_EQ(LocationMenuCaption(10, "Seattle, WA", true), "# 10 Seattle, WA  [Def]");
}
