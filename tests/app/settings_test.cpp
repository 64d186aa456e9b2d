#include "app/settingsio.h"
#include "platform/settingsstore.h"

#include <gtest/gtest.h>

namespace {
SettingsStore FreshStore()
{
    SettingsStore store(QStringLiteral("SettingsTest"));
    store.DeleteAll();
    return store;
}
} // namespace

TEST(Settings, MissingKeysTakeTheDefaultsTable)
{
    SettingsStore store = FreshStore();
    Settings s;
    LoadSettings(s, store);
    EXPECT_EQ(s.Locations[1].Name, "Alexandria, LA");
    EXPECT_DOUBLE_EQ(s.Locations[1].Longitude, 92.42);
    EXPECT_DOUBLE_EQ(s.Locations[2].Longitude, 80.2);
    EXPECT_DOUBLE_EQ(s.Locations[5].Longitude, 84.79);
    EXPECT_EQ(s.Locations[8].Name, "Pittsburg, PA");
    EXPECT_EQ(s.Locations[10].Name, "Seattle, Wa");
    EXPECT_EQ(s.Locations[3].TimeZone, 8);
    EXPECT_EQ(s.TimeFormats, 1);
    EXPECT_EQ(s.FormTop, "300");
    EXPECT_EQ(s.FormLeft, 300);
    EXPECT_TRUE(s.MouseClick);
    EXPECT_EQ(s.MoonColor, 16777215);
}

TEST(Settings, StoredTextFormsRoundTrip)
{
    SettingsStore store = FreshStore();
    store.Write("Usr1Long", "92.4249");
    store.Write("Usr2Long", "80.2");
    store.Write("Usr3Lat", "-0.5");
    store.Write("Usr4TZ", "-3");
    store.Write("Graphic", "7");
    store.Write("MouseClick", "False");
    Settings s;
    LoadSettings(s, store);
    EXPECT_DOUBLE_EQ(s.Locations[1].Longitude, 92.42);
    EXPECT_DOUBLE_EQ(s.Locations[3].Latitude, -0.5);
    s.Locations[5].Longitude = 0.5;
    SaveSettings(s, store);
    EXPECT_EQ(store.Read("Usr1Long", ""), "92.42");
    EXPECT_EQ(store.Read("Usr2Long", ""), "80.20");
    EXPECT_EQ(store.Read("Usr5Long", ""), ".50");
    EXPECT_EQ(store.Read("Usr3Lat", ""), "-.50");
    EXPECT_EQ(store.Read("Usr1TZ", ""), " 6");
    EXPECT_EQ(store.Read("Usr4TZ", ""), "-3");
    EXPECT_EQ(store.Read("Graphic", ""), "7"); // kept although nothing uses it
    EXPECT_EQ(store.Read("MouseClick", ""), "False");
    EXPECT_EQ(store.Read("TimeFormats", ""), "1");
    Settings again;
    LoadSettings(again, store);
    EXPECT_DOUBLE_EQ(again.Locations[5].Longitude, 0.5);
    EXPECT_EQ(again.Locations[4].TimeZone, -3);
    EXPECT_FALSE(again.MouseClick);
}

TEST(Settings, FirstStartValuesDifferFromTheDefaultsInThreePlaces)
{
    SettingsStore store = FreshStore();
    WriteFirstStartValues(store);
    Settings s;
    LoadSettings(s, store);
    EXPECT_DOUBLE_EQ(s.Locations[5].Longitude, 84.39);
    EXPECT_EQ(s.Locations[8].Name, "Pittsburgh, PA");
    EXPECT_EQ(s.Locations[10].Name, "Seattle, WA");
    EXPECT_EQ(s.Locations[1].Name, "Alexandria, LA");
    EXPECT_EQ(store.Read("Usr1TZ", ""), " 6");
    EXPECT_FALSE(store.Contains("FormTop"));
}

TEST(Settings, TextThatDoesNotConvertNamesTheKey)
{
    SettingsStore store = FreshStore();
    store.Write("Usr7TZ", "five");
    Settings s;
    try {
        LoadSettings(s, store);
        FAIL() << "bad text accepted";
    } catch (const SettingError& e) {
        EXPECT_EQ(e.Key, "Usr7TZ");
        EXPECT_EQ(e.Text, "five");
    }
    store.Write("Usr7TZ", "5");
    store.Write("FormLeft", "70000"); // beyond a 16-bit integer
    EXPECT_THROW(LoadSettings(s, store), SettingError);
}

TEST(Settings, TextSettingsReadAsBooleans)
{
    Settings s;
    EXPECT_TRUE(s.AmPm());
    s.AMPM = "False";
    EXPECT_FALSE(s.AmPm());
    s.ParallacticAngle = "-1";
    EXPECT_TRUE(s.ParallacticOn());
    s.DefLoc = "4";
    EXPECT_EQ(s.DefaultLocation(), 4);
    s.DefLoc = "11";
    EXPECT_EQ(s.DefaultLocation(), 1);
}
