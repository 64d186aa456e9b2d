// SPDX-License-Identifier: GPL-3.0-or-later
#include "model/currentlocation.h"
#include "platform/settingsio.h"
#include "platform/settingsstore.h"

#include <QFile>

#include <gtest/gtest.h>

// Every location of model/data/locations.txt as the current one, on the 24-hour clock.
TEST(CurrentLocation, CaptionZoneAndHemisphereOfALocation)
{
    QFile file(QStringLiteral(QUILLMERE_TESTDATA "/locations.txt"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Text));
    SettingsStore store(QStringLiteral("LocationTest"));
    store.DeleteAll();
    int rows = 0;
    for (const QString& line : QString::fromUtf8(file.readAll()).split('\n')) {
        const QStringList f = line.split('|');
        if (line.startsWith('#') || f.size() != 9)
            continue;
        Settings s;
        LoadSettings(s, store);
        s.Locations[3] = {f[0].toStdString(), f[1].toDouble(), f[2].toDouble(),
                          std::int16_t(f[3].toInt()), ""};
        s.CurLoc = 3;
        s.TimeFormats = std::int16_t(f[4].toInt());
        s.DaylightBias = -60;
        s.AMPM = "False";
        CurrentLocation cur;
        Observer site;
        ApplyLocationValues(s, cur, site);
        EXPECT_EQ(cur.LocationCaption, f[5].toStdString());
        EXPECT_EQ(s.HemiSphere, f[6].toStdString()) << f[0].toStdString();
        EXPECT_EQ(cur.SouthernHemisphere, f[2].toDouble() < 0 ? -1 : 0) << f[0].toStdString();
        EXPECT_NEAR(site.ZoneDays * 24.0, f[7].toDouble(), 1e-12) << f[0].toStdString();
        EXPECT_NEAR(site.DstOffsetDays * 24.0, f[8].toDouble(), 1e-12) << f[0].toStdString();
        EXPECT_FALSE(site.AMPM) << f[0].toStdString(); // the chosen 24-hour clock is kept
        ++rows;
    }
    EXPECT_EQ(rows, 4);
}
