// SPDX-License-Identifier: GPL-3.0-or-later
// The city database the build generates, asked directly with plain SQL, against published
// coordinates and the zones' standard offsets.
#include "db/database.h"
#include "support/cityfolder.h"

#include <QFileInfo>

#include <gtest/gtest.h>

namespace {

// The first value of a plain SQL query on the built city database.
QVariant Scalar(const QString& sql, const QVariantList& values = {})
{
    return cityfolder::Column(QFileInfo(QUILLMERE_ENCDB).absolutePath(), sql, values).value(0);
}

struct KnownCity {
    const char* State;
    const char* City;
    double LonWest; // published coordinates, degrees (west and north positive)
    double LatNorth;
    int Zone; // standard time, hours west of Greenwich
};

} // namespace

TEST(Encdb, ThousandsOfCitiesOneRowPerStateAndCity)
{
    const int rows = Scalar("SELECT count(*) FROM Table1").toInt();
    EXPECT_GT(rows, 24000); // GeoNames' 24 361 cities, half-hour zones included
    EXPECT_LT(rows, 24361);
    EXPECT_EQ(Scalar("SELECT count(*) FROM (SELECT DISTINCT lower(State), lower(City) "
                     "FROM Table1)")
                  .toInt(),
              rows);
    EXPECT_EQ(Scalar("SELECT count(*) FROM Table1 WHERE typeof(Timezone) <> 'integer' OR "
                     "Timezone NOT BETWEEN -12 AND 12 OR LongInDegrees < 0 OR LatInDegrees < 0 "
                     "OR LongChar NOT IN ('W', 'E') OR LatChar NOT IN ('N', 'S')")
                  .toInt(),
              0);
    EXPECT_EQ(Scalar("SELECT count(DISTINCT State) FROM Table1 WHERE length(State) = 2").toInt(),
              51); // fifty states and DC
    // Cities on zones of minutes are kept with their own zone and the nearest whole hour.
    EXPECT_EQ(Scalar("SELECT TzName || ' ' || Timezone FROM Table1 WHERE City = 'Kolkata'"),
              "Asia/Kolkata -6");
    EXPECT_EQ(Scalar("SELECT TzName || ' ' || Timezone FROM Table1 WHERE City = 'Kathmandu'"),
              "Asia/Kathmandu -6");
    EXPECT_EQ(Scalar("SELECT TzName FROM Table1 WHERE City = 'St. John''s' AND State = 'Canada'"),
              "America/St_Johns");
    EXPECT_EQ(Scalar("SELECT count(*) FROM Table1 WHERE TzName IS NULL OR TzName = ''").toInt(), 0);
}

TEST(Encdb, KnownCitiesWithTheirStandardZones)
{
    // Coordinates as published (Wikipedia / GNIS); zones from the IANA rules: New York, Denver,
    // London, Berlin, Sydney and Auckland keep daylight saving, Phoenix, Honolulu, Cape Town
    // and Tokyo do not; Dublin keeps Greenwich time in winter.
    const KnownCity cities[] = {{"NY", "New York", 74.006, 40.713, 5},
                                {"CO", "Denver", 104.990, 39.739, 7},
                                {"AZ", "Phoenix", 112.074, 33.448, 7},
                                {"HI", "Honolulu", 157.858, 21.307, 10},
                                {"FL", "Miami", 80.192, 25.762, 5},
                                {"ID", "Coeur d'Alene", 116.780, 47.678, 8},
                                {"United Kingdom", "London", 0.128, 51.507, 0},
                                {"Germany", "Berlin", -13.405, 52.520, -1},
                                {"Australia", "Sydney", -151.209, -33.869, -10},
                                {"New Zealand", "Auckland", -174.763, -36.848, -12},
                                {"South Africa", "Cape Town", -18.424, -33.925, -2},
                                {"Japan", "Tokyo", -139.692, 35.690, -9},
                                {"Ireland", "Dublin", 6.260, 53.350, 0}};
    for (const KnownCity& c : cities) {
        SCOPED_TRACE(c.City);
        // West and north positive, then the zone.
        const QStringList found =
            Scalar("SELECT (CASE LongChar WHEN 'W' THEN 1 ELSE -1 END * LongInDegrees) || ' ' "
                   "|| (CASE LatChar WHEN 'N' THEN 1 ELSE -1 END * LatInDegrees) || ' ' || "
                   "Timezone FROM Table1 "
                   "WHERE State = ? AND City = ?",
                   {QString::fromUtf8(c.State), QString::fromUtf8(c.City)})
                .toString()
                .split(' ');
        ASSERT_EQ(found.size(), 3);
        EXPECT_NEAR(found[0].toDouble(), c.LonWest, 0.05);
        EXPECT_NEAR(found[1].toDouble(), c.LatNorth, 0.05);
        EXPECT_EQ(found[2].toInt(), c.Zone);
    }
}

TEST(Encdb, HalfHourZonesKeptAndTextComparesIgnoreCase)
{
    EXPECT_GT(Scalar("SELECT count(*) FROM Table1 WHERE State IN ('India', 'Iran', 'Nepal', "
                     "'Afghanistan', 'Myanmar') OR City IN ('Adelaide', 'Darwin', 'St. John''s')")
                  .toInt(),
              100);
    EXPECT_EQ(Scalar("SELECT count(*) FROM Table1 WHERE City = 'AUSTIN'").toInt(), 2); // TX, MN
    EXPECT_EQ(Scalar("SELECT State FROM Table1 WHERE City = 'coeur d''alene'").toString(), "ID");
}

TEST(Encdb, OpensOnlyWithItsPassword)
{
    Database db;
    EXPECT_FALSE(db.Open(QStringLiteral(QUILLMERE_ENCDB)));
    EXPECT_FALSE(db.Open(QStringLiteral(QUILLMERE_ENCDB), ";pwd=riverstone"));
    EXPECT_TRUE(db.Open(QStringLiteral(QUILLMERE_ENCDB), ";pwd=RiverStone"));
}
