// SPDX-License-Identifier: GPL-3.0-or-later
// The city database the build generates, asked directly with plain SQL, against published
// coordinates and the zones' standard offsets.
#include "db/database.h"
#include "support/cityfolder.h"
#include "support/testenv.h"

#include <QFileInfo>

#include <gtest/gtest.h>

namespace {

// The first value of a plain SQL query on the built city database.
QVariant Scalar(const QString& sql, const QVariantList& values = {})
{
    return cityfolder::Column(QFileInfo(QUILLMERE_ENCDB).absolutePath(), sql, values).value(0);
}

} // namespace

// GeoNames' 24 361 cities less some dropped, each state and city once, every row with a
// whole-hour zone, its IANA name and coordinates in range.
TEST(Encdb, ThousandsOfCitiesOneRowPerStateAndCity)
{
    const int rows = Scalar("SELECT count(*) FROM Table1").toInt();
    EXPECT_GT(rows, 24000);
    EXPECT_LT(rows, 24361);
    EXPECT_EQ(Scalar("SELECT count(DISTINCT lower(State) || '|' || lower(City)) FROM Table1 "
                     "WHERE typeof(Timezone) = 'integer' AND Timezone BETWEEN -12 AND 12 AND "
                     "LongInDegrees >= 0 AND LatInDegrees >= 0 AND LongChar IN ('W', 'E') AND "
                     "LatChar IN ('N', 'S') AND TzName <> ''"),
              rows);
}

TEST(Encdb, KnownCitiesWithTheirStandardZones)
{
    for (const QStringList& city : testenv::DataRows(QUILLMERE_TESTDATA "/known_cities.txt")) {
        SCOPED_TRACE(city[1].toStdString());
        // West and north positive, then the zone.
        const QStringList found =
            Scalar("SELECT (CASE LongChar WHEN 'W' THEN 1 ELSE -1 END * LongInDegrees) || ' ' "
                   "|| (CASE LatChar WHEN 'N' THEN 1 ELSE -1 END * LatInDegrees) || ' ' || "
                   "Timezone FROM Table1 "
                   "WHERE State = ? AND City = ?",
                   {city[0], city[1]})
                .toString()
                .split(' ');
        ASSERT_EQ(found.size(), 3);
        EXPECT_NEAR(found[0].toDouble(), city[2].toDouble(), 0.05);
        EXPECT_NEAR(found[1].toDouble(), city[3].toDouble(), 0.05);
        EXPECT_EQ(found[2], city[4]);
        EXPECT_EQ(
            Scalar("SELECT TzName FROM Table1 WHERE State = ? AND City = ?", {city[0], city[1]}),
            city[5]);
    }
}

TEST(Encdb, OpensOnlyWithItsPassword)
{
    Database db;
    EXPECT_FALSE(db.Open(QStringLiteral(QUILLMERE_ENCDB)));
    EXPECT_FALSE(db.Open(QStringLiteral(QUILLMERE_ENCDB), ";pwd=riverstone"));
    EXPECT_TRUE(db.Open(QStringLiteral(QUILLMERE_ENCDB), ";pwd=RiverStone"));
}
