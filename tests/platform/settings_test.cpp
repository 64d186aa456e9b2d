// SPDX-License-Identifier: GPL-3.0-or-later
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

// The non-comment lines of a file of platform/data.
QStringList DataLines(const char* name)
{
    QFile file(QStringLiteral(QUILLMERE_TESTDATA "/") + QLatin1String(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Text)) << name;
    QStringList lines;
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n'))
        if (!line.isEmpty() && !line.startsWith('#'))
            lines << line;
    return lines;
}

void WriteFile(const SettingsStore& store, const QByteArray& settings)
{
    QFileInfo(store.FilePath()).dir().mkpath(QStringLiteral("."));
    QFile file(store.FilePath());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write("[Settings]\n" + settings);
}
} // namespace

// Missing keys take the defaults; the texts of platform/data/settings_forms.txt stored by hand
// convert and are written back in the program's forms, and read back the same.
TEST(Settings, DefaultsAndStoredTextFormsRoundTrip)
{
    SettingsStore store = FreshStore();
    Settings s;
    LoadSettings(s, store);
    EXPECT_EQ(s.Locations[8].Name, "Pittsburg, PA");
    EXPECT_EQ(std::tuple(s.Locations[5].Longitude, s.Locations[3].TimeZone, s.FormLeft),
              std::tuple(84.79, 8, 300));
    const QStringList forms = DataLines("settings_forms.txt");
    ASSERT_GE(forms.size(), 10);
    for (const QString& line : forms)
        if (line.section('|', 1, 1) != "-")
            store.Write(line.section('|', 0, 0), line.section('|', 1, 1));
    LoadSettings(s, store);
    EXPECT_DOUBLE_EQ(s.Locations[1].Longitude, 92.42);
    EXPECT_DOUBLE_EQ(s.Locations[3].Latitude, -0.5);
    EXPECT_TRUE(s.ImperialUnits);
    EXPECT_TRUE(s.Locations[3].Reminder == ReminderOption{}); // none in files from before them
    store.DeleteAll();
    EXPECT_TRUE(SaveSettings(s, store));
    for (const QString& line : forms)
        EXPECT_EQ(store.Read(line.section('|', 0, 0), "").toStdString(),
                  line.section('|', 2).toStdString())
            << line.toStdString();
    Settings again;
    LoadSettings(again, store);
    EXPECT_TRUE(again.Locations[2].Reminder == s.Locations[2].Reminder);
    EXPECT_FALSE(again.MouseClick);
}

// The first start's values differ from the defaults in three places, and its clock is the
// locale's: "14:30" in Germany and Spain, "2:30 PM" in the United States, the program's
// 12-hour clock in the C locale.
TEST(Settings, FirstStartValuesAndTheLocalesClock)
{
    for (const auto& [name, ampm] :
         {std::pair{"de_DE", "False"}, {"es_ES", "False"}, {"en_US", "True"}, {"C", "True"}}) {
        SettingsStore store = FreshStore();
        WriteFirstStartValues(store, QLocale(QString::fromLatin1(name)));
        EXPECT_EQ(store.Read("AMPM", ""), ampm) << name;
        Settings s;
        LoadSettings(s, store);
        EXPECT_EQ(std::tuple(s.Locations[5].Longitude, s.Locations[8].Name, s.Locations[10].Name),
                  std::tuple(84.39, "Pittsburgh, PA", "Seattle, WA"));
        EXPECT_EQ(store.Read("Usr1TZ", ""), " 6");
        EXPECT_FALSE(store.Contains("FormTop"));
    }
}

// A person editing the file writes names with commas unquoted, which QSettings reads as a
// list; the lines of platform/data/settings_refused.txt are refused, naming key and text.
TEST(Settings, HandWrittenFileIsReadWholeAndRangeChecked)
{
    SettingsStore store = FreshStore();
    WriteFile(store, "Usr1Name=Alexandria, LA\nUsr2Name=\"Key West, FL\"\n");
    Settings s;
    LoadSettings(s, store);
    EXPECT_EQ(s.Locations[1].Name, "Alexandria, LA");
    EXPECT_EQ(s.Locations[2].Name, "Key West, FL");
    EXPECT_TRUE(SaveSettings(s, store));
    EXPECT_EQ(store.Read("Usr1Name", ""), "Alexandria, LA");

    const QStringList refused = DataLines("settings_refused.txt");
    ASSERT_GE(refused.size(), 10);
    for (const QString& line : refused) {
        WriteFile(store, line.toUtf8() + "\n");
        try {
            LoadSettings(s, store);
            ADD_FAILURE() << line.toStdString() << " accepted";
        } catch (const SettingError& e) {
            EXPECT_EQ(e.Key, line.section('=', 0, 0).toStdString());
            EXPECT_EQ(e.Text, line.section('=', 1).toStdString());
        }
    }
    WriteFile(store, "Usr1Lat=-90\nUsr2Long=-180\nUsr1TZ=-12\nUsr2TZ=12\nUsr4RemindLead=720\n");
    EXPECT_NO_THROW(LoadSettings(s, store));
}
