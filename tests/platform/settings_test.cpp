// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/locationrules.h"
#include "platform/settingsio.h"
#include "platform/settingsstore.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <tuple>

namespace {
SettingsStore FreshStore()
{
    SettingsStore store(QStringLiteral("SettingsTest"));
    store.DeleteAll();
    return store;
}
} // namespace

// Missing keys take the defaults table; hand-stored texts convert and are written back in
// the program's forms (two decimals without a leading zero, a blank before a positive zone),
// keys nothing uses kept, reminders of files from before them empty.
TEST(Settings, DefaultsAndStoredTextFormsRoundTrip)
{
    SettingsStore store = FreshStore();
    Settings s;
    LoadSettings(s, store);
    EXPECT_EQ(s.Locations[1].Name, "Alexandria, LA");
    EXPECT_DOUBLE_EQ(s.Locations[5].Longitude, 84.79);
    EXPECT_EQ(s.Locations[8].Name, "Pittsburg, PA");
    EXPECT_EQ(s.Locations[3].TimeZone, 8);
    EXPECT_EQ(std::tuple(s.TimeFormats, s.FormTop, s.FormLeft, s.MouseClick, s.MoonColor),
              std::tuple(1, "300", 300, true, 16777215));
    for (const auto& [key, text] : {std::pair{"Usr1Long", "92.4249"},
                                    {"Usr2Long", "80.2"},
                                    {"Usr3Lat", "-0.5"},
                                    {"Usr4TZ", "-3"},
                                    {"Graphic", "7"},
                                    {"MouseClick", "False"},
                                    {"Units", "Imperial"}})
        store.Write(key, text);
    LoadSettings(s, store);
    EXPECT_DOUBLE_EQ(s.Locations[1].Longitude, 92.42);
    EXPECT_DOUBLE_EQ(s.Locations[3].Latitude, -0.5);
    EXPECT_FALSE(s.Locations[2].Reminder.Any());
    EXPECT_TRUE(s.ImperialUnits);
    s.Locations[5].Longitude = 0.5;
    s.Locations[2].Reminder = {
        .Minors = true, .SunEvents = true, .LeadMinutes = 45, .BestDaysOnly = true};
    s.ImperialUnits = false;
    EXPECT_TRUE(SaveSettings(s, store));
    for (const auto& [key, text] : {std::pair{"Usr1Long", "92.42"},
                                    {"Usr2Long", "80.20"},
                                    {"Usr5Long", ".50"},
                                    {"Usr3Lat", "-.50"},
                                    {"Usr1TZ", " 6"},
                                    {"Usr4TZ", "-3"},
                                    {"Graphic", "7"},
                                    {"MouseClick", "False"},
                                    {"TimeFormats", "1"},
                                    {"Units", "Metric"},
                                    {"Usr2RemindLead", "45"},
                                    {"Usr2RemindMajor", "False"}})
        EXPECT_EQ(store.Read(key, ""), text) << key;
    Settings again;
    LoadSettings(again, store);
    EXPECT_DOUBLE_EQ(again.Locations[5].Longitude, 0.5);
    EXPECT_FALSE(again.MouseClick);
    EXPECT_TRUE(again.Locations[2].Reminder == s.Locations[2].Reminder);
    EXPECT_TRUE(again.Locations[3].Reminder == ReminderOption{});
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

// The first start's clock is the locale's: "14:30" in Germany and Spain, "2:30 PM" in the
// United States, the program's 12-hour clock in the C locale.
TEST(Settings, FirstStartClockFollowsTheLocale)
{
    for (const auto& [name, ampm] :
         {std::pair{"de_DE", "False"}, {"es_ES", "False"}, {"en_US", "True"}, {"C", "True"}}) {
        SettingsStore store = FreshStore();
        WriteFirstStartValues(store, QLocale(QString::fromLatin1(name)));
        EXPECT_EQ(store.Read("AMPM", ""), ampm) << name;
    }
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

// A person editing the file writes names with commas unquoted, which QSettings reads as a
// list; coordinates and zones out of range are refused like text that does not convert.
TEST(Settings, HandWrittenFileIsReadWholeAndRangeChecked)
{
    SettingsStore store = FreshStore();
    const auto writeFile = [&store](const QByteArray& settings) {
        QFileInfo(store.FilePath()).dir().mkpath(QStringLiteral("."));
        QFile file(store.FilePath());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write("[Settings]\n" + settings);
    };
    writeFile("Usr1Name=Alexandria, LA\nUsr2Name=\"Key West, FL\"\n");
    Settings s;
    LoadSettings(s, store);
    EXPECT_EQ(s.Locations[1].Name, "Alexandria, LA");
    EXPECT_EQ(s.Locations[2].Name, "Key West, FL");
    EXPECT_TRUE(SaveSettings(s, store));
    EXPECT_EQ(store.Read("Usr1Name", ""), "Alexandria, LA");
    // A name far longer than the menus take is cut when read; an empty one is the default's.
    writeFile("Usr1Name=" + QByteArray(100000, 'x') + "\nUsr2Name=\n");
    LoadSettings(s, store);
    EXPECT_EQ(s.Locations[1].Name, std::string(MaxLocationNameLength, 'x'));
    EXPECT_EQ(s.Locations[2].Name, "Miami, FL");

    for (const auto& [line, key] : {std::pair{"Usr1Lat=95", "Usr1Lat"},
                                    {"Usr3Lat=-90.5", "Usr3Lat"},
                                    {"Usr2Long=180.01", "Usr2Long"},
                                    {"Usr1TZ=30000", "Usr1TZ"},
                                    {"Usr7TZ=five", "Usr7TZ"},
                                    {"FormLeft=70000", "FormLeft"},
                                    {"Usr10TZ=-13", "Usr10TZ"},
                                    {"Usr4RemindLead=0", "Usr4RemindLead"},
                                    {"Usr4RemindLead=721", "Usr4RemindLead"},
                                    {"Usr5RemindSun=sometimes", "Usr5RemindSun"},
                                    {"Units=furlongs", "Units"}}) {
        writeFile(QByteArray(line) + "\n");
        try {
            LoadSettings(s, store);
            ADD_FAILURE() << line << " accepted";
        } catch (const SettingError& e) {
            EXPECT_EQ(e.Key, key);
            EXPECT_EQ(e.Text, std::string(line).substr(std::string(line).find('=') + 1));
        }
    }
    writeFile("Usr1Lat=-90\nUsr2Long=-180\nUsr1TZ=-12\nUsr2TZ=12\nUsr4RemindLead=720\n");
    EXPECT_NO_THROW(LoadSettings(s, store));
}

// A file that cannot be written (here a folder stands in its place, which stops root too)
// is reported, not passed over.
TEST(Settings, SavingReportsAFileThatCannotBeWritten)
{
    SettingsStore store(QStringLiteral("Unwritable"));
    QFile::remove(store.FilePath());
    ASSERT_TRUE(QDir().mkpath(store.FilePath()));
    Settings s;
    EXPECT_FALSE(SaveSettings(s, store));
    QDir(store.FilePath()).removeRecursively();
    EXPECT_TRUE(SaveSettings(s, store));
}

// The command line's store reads the file and keeps its own writes in memory.
TEST(Settings, ReadOnlyStoreLeavesTheFileAlone)
{
    SettingsStore file = FreshStore();
    file.Write("Usr1Name", "Camp");
    ASSERT_TRUE(file.Flush());
    SettingsStore store = SettingsStore::ReadOnly(QStringLiteral("SettingsTest"));
    EXPECT_EQ(store.Read("Usr1Name", ""), "Camp");
    WriteFirstStartValues(store);
    EXPECT_EQ(store.Read("Usr1Name", ""), "Alexandria, LA");
    EXPECT_EQ(file.Read("Usr1Name", ""), "Camp");
    EXPECT_FALSE(file.Contains("Usr2Name"));
    store.DeleteAll();
    EXPECT_FALSE(store.Contains("Usr1Name"));
    EXPECT_TRUE(file.Contains("Usr1Name"));
}
