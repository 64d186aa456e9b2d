// SPDX-License-Identifier: GPL-3.0-or-later
// The per-catch records of a year file, checked past the program's own layer with plain SQL:
// several species on one day, a night trip across midnight, released and kept fish, photos,
// the day's total following its catches, and the unit conversions against their defined
// factors. The upgrade of an older file is checked by the crash tests, the password by
// logfiles_test.cpp, refused entries through the catch editor (tests/ui/log).
#include "logdb/backups.h"
#include "logdb/catches.h"
#include "logdb/catchphotos.h"
#include "logdb/catchunits.h"
#include "logdb/queryrun.h"
#include "support/filledyear.h"
#include "support/logfixture.h"
#include "support/testenv.h"

#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

using namespace logtest;

namespace {

const QDateTime Now = QDateTime::fromString("2026-11-24T03:00:00", Qt::ISODate);

Catch MakeCatch(const QString& date, const QString& time, const QString& species, int count,
                bool released)
{
    return {.Date = date, .Time = time, .Species = species, .Count = count, .Released = released};
}

QVariant TotalOf(const QString& path, const QString& date)
{
    return PlainColumn(path, "SELECT TotalTaken FROM table1 WHERE JulianDate = '" + date + "'")
        .at(0);
}

} // namespace

TEST(Catches, ADayOfSeveralSpeciesAndANightTripAreKeptWithTheirTotals)
{
    const QString path = MakeYearFile("catches-day");
    Catch pike = MakeCatch("2024-07-04", "06:10:00", "Pike", 1, false);
    pike.LengthMm = 812, pike.WeightG = 4350, pike.Bait = "Spinnerbait", pike.Method = "Casting";
    pike.Spot = "North weed bed", pike.Latitude = 46.5125, pike.Longitude = -94.25;
    pike.WaterTemp = 18.5, pike.AirTemp = 21.0, pike.Wind = "SW 10 km/h", pike.Sky = "Overcast";
    pike.Note = "Took it at the drop-off";
    std::vector<Catch> day = {pike, MakeCatch("2024-07-04", "23:40:00", "Walleye", 3, false),
                              MakeCatch("2024-07-04", "", "perch", 12, true),
                              MakeCatch("2024-07-05", "00:20:00", "Walleye", 2, true)};
    for (Catch& c : day)
        ASSERT_TRUE(AddCatch(path, c, Now)) << c.Species.toStdString();

    std::vector<Catch> read;
    ASSERT_TRUE(ReadDayCatches(path, "2024-07-04", read));
    EXPECT_EQ(read, (std::vector<Catch>{day[2], day[0], day[1]})); // untimed first, then by time
    EXPECT_EQ(TotalOf(path, "2024-07-04").toInt(), 16);
    EXPECT_EQ(TotalOf(path, "2024-07-05").toInt(), 2);
    EXPECT_EQ(PlainColumn(path, "SELECT SUM(FishCount) FROM Catches WHERE Released = 1")[0], 14);

    // Moving the night's catch to the next day moves its fish; removing the last catch of a
    // day empties the total it followed; a day never given catches keeps its own entry.
    day[1].Date = "2024-07-05";
    ASSERT_TRUE(UpdateCatch(path, day[1], Now));
    EXPECT_EQ(TotalOf(path, "2024-07-04").toInt(), 13);
    EXPECT_EQ(TotalOf(path, "2024-07-05").toInt(), 5);
    ASSERT_TRUE(RemoveCatch(path, day[3].Id, Now));
    ASSERT_TRUE(RemoveCatch(path, day[1].Id, Now));
    EXPECT_TRUE(TotalOf(path, "2024-07-05").isNull());
    EXPECT_EQ(PlainColumn(path, "SELECT Notes FROM table1 WHERE JulianDate = '2024-07-06'")[0],
              "row-188");

    QStringList species;
    ASSERT_TRUE(SpeciesList(QFileInfo(path).absolutePath(), species));
    EXPECT_EQ(species, QStringList({"perch", "Pike"}));
}

// Another picture of a name already kept gets its own; removing a catch removes the photos no
// other catch shows.
TEST(CatchPhotos, CopiesKeepTheirNamesAndGoWithTheirLastCatch)
{
    const QString path = MakeYearFile("catches-photos");
    const QDir folder = QFileInfo(path).absoluteDir();
    const QString source = testenv::FreshDir("camera");
    testenv::WriteFile(source + "/pike.jpg", "first");
    ASSERT_TRUE(QDir(source).mkdir("other"));
    testenv::WriteFile(source + "/other/pike.jpg", "second");
    Catch both = MakeCatch("2024-05-01", "07:00:00", "Pike", 1, false);
    Catch one = MakeCatch("2024-05-02", "08:00:00", "Perch", 1, false);
    both.Photos = {{}, {}};
    ASSERT_TRUE(AddPhoto(path, source + "/pike.jpg", both.Photos[0]));
    ASSERT_TRUE(AddPhoto(path, source + "/other/pike.jpg", both.Photos[1]));
    EXPECT_EQ(both.Photos, QStringList({"photos/2024/pike.jpg", "photos/2024/pike_2.jpg"}));
    EXPECT_EQ(testenv::FileBytes(folder.filePath(both.Photos[1])), "second");
    one.Photos = {both.Photos[0]};
    ASSERT_TRUE(AddCatch(path, both, Now));
    ASSERT_TRUE(AddCatch(path, one, Now));
    const auto photoFiles = [&] {
        return QDir(folder.filePath("photos/2024")).entryList(QDir::Files, QDir::Name);
    };
    ASSERT_EQ(photoFiles(), QStringList({"pike.jpg", "pike_2.jpg"})); // and no temporaries
    ASSERT_TRUE(RemoveCatch(path, both.Id, Now));
    EXPECT_EQ(photoFiles(), QStringList({"pike.jpg"}));
    // A photo is shown only from the log's own folder: one gone, or named outside it, is missing.
    const std::pair<QString, bool> looked[] = {{one.Photos[0], false},
                                               {"photos/2024/gone.jpg", true},
                                               {"../camera/pike.jpg", true},
                                               {source + "/pike.jpg", true}};
    for (const auto& [relative, missing] : looked) {
        const PhotoFile photo = LookUpPhoto(path, relative);
        EXPECT_EQ(photo.Missing, missing) << relative.toStdString();
        EXPECT_EQ(photo.Message.contains(relative), missing) << photo.Message.toStdString();
    }
    ASSERT_TRUE(RemoveCatch(path, one.Id, Now));
    EXPECT_EQ(photoFiles(), QStringList());
}

TEST(CatchUnits, ConversionsFollowTheDefinedFactorsAndTypedValuesAreChecked)
{
    EXPECT_DOUBLE_EQ(InchesToCm(1), 2.54);
    EXPECT_DOUBLE_EQ(CmToInches(2.54), 1);
    EXPECT_DOUBLE_EQ(PoundsToKg(1), 0.45359237);
    EXPECT_DOUBLE_EQ(KgToPounds(0.45359237), 1);
    EXPECT_DOUBLE_EQ(CelsiusToFahrenheit(100), 212);
    EXPECT_DOUBLE_EQ(FahrenheitToCelsius(-40), -40);
    std::string why;
    EXPECT_EQ(LengthFromText(" 12.5 ", UnitSystem::Imperial, why), 318);
    EXPECT_FALSE(LengthFromText("12in", UnitSystem::Imperial, why));
    EXPECT_EQ(why, "\"12in\" is not a length from 0 to 196.9 in");
    EXPECT_EQ(WeightFromText("2.2", UnitSystem::Imperial, why), 998);
    EXPECT_EQ(WeightText(998, UnitSystem::Imperial), "2.20");
    EXPECT_EQ(LengthText(318, UnitSystem::Imperial), "12.5");
    EXPECT_NEAR(*TemperatureFromText("65", UnitSystem::Imperial, why), 18.3333, 1e-4);
    EXPECT_EQ(TemperatureText(18.5, UnitSystem::Imperial), "65.3");
}

TEST(CatchConditions, SpeciesNotesAndReleasedPickTheDaysPlainSqlPicks)
{
    const QString path = MakeYearFile("catches-query");
    const QString old = MakeYearFile("catches-query-old");
    std::vector<Catch> catches;
    for (int i = 0; i < 60; ++i) {
        catches.push_back({.Date = QDate(2024, 1, 1).addDays(i * 5).toString(Qt::ISODate),
                           .Species = i % 3 == 0 ? "Pike" : "walleye",
                           .Released = i % 4 == 0,
                           .Note = i % 7 == 0 ? "At the DROP-off, 100% sure" : ""});
    }
    catches.push_back({.Date = "2024-01-03", .Species = "Ñandú", .Note = "Ål i vassen"});
    ASSERT_TRUE(AddCatches(path, catches, Now));
    for (const QStringList& c : testenv::DataRows(QUILLMERE_TESTDATA "/catch_conditions.txt")) {
        for (const auto& [file, where] : {std::pair{path, c[3]}, std::pair{old, c[4]}}) {
            QueryForm form;
            form.Catches = {c[0].toStdString(), c[1].toStdString(), c[2] == "1"};
            const Selection s = SelectDataWhere(file, form, 1);
            EXPECT_TRUE(s.Refused.isEmpty()) << s.Refused.join('|').toStdString();
            EXPECT_EQ(
                RecordIds(file, s.RecordSource),
                PlainIds(file, "SELECT DBID FROM table1 WHERE " + where + " ORDER BY JulianDate"))
                << where.toStdString();
        }
    }
}
