// SPDX-License-Identifier: GPL-3.0-or-later
// The per-catch breakdown of a year filled with the engine's forecasts, each grouping compared
// with a plain-SQL count over the same file (the periods' query in data/catch_periods.sql),
// past the program's own reading and arithmetic.
#include "logdb/catchdays.h"
#include "logdb/catches.h"
#include "logdb/catchtally.h"
#include "support/filledyear.h"
#include "support/testenv.h"

#include <QDate>
#include <QTime>

#include <gtest/gtest.h>

#include <map>
#include <tuple>

using namespace logtest;

namespace {

constexpr int CatchCount = 240;

// Catches on days spread over the year, round the clock at odd seconds (never exactly on a
// period's edge), some untimed, names in mixed case, some without spot or temperature.
std::vector<Catch> SpreadCatches()
{
    const QStringList species = {"Pike", "walleye", "Walleye", "Perch", "", "Bass", "pike"};
    const QStringList spots = {"Dam", "", "North bay", "dam", "Point"};
    std::vector<Catch> catches;
    for (int i = 0; i < CatchCount; ++i) {
        Catch c;
        c.Date = QDate(2024, 1, 1).addDays(i * 3 / 2).toString(Qt::ISODate);
        if (i % 11 != 0)
            c.Time = QTime(0, 0).addSecs((i * 7919 + 17) % 86400).toString("HH:mm:ss");
        c.Species = species[i % species.size()];
        c.Spot = spots[i % spots.size()];
        c.Count = 1 + i % 4;
        c.Released = i % 3 == 0;
        if (i % 9 != 0)
            c.WaterTemp = (i * 37 % 290) / 10.0;
        catches.push_back(c);
    }
    return catches;
}

using Counts = std::map<std::string, std::tuple<int, long, long>>; // catches, fish, released

// Group key -> counts, from SQL giving key, catches, fish, released.
Counts SqlCounts(const QString& path, const QString& sql)
{
    Counts counts;
    for (const auto& row : PlainRows(path, sql))
        counts[row[0].isNull() ? "-" : row[0].toString().toStdString()] = {
            row[1].toInt(), row[2].toLongLong(), row[3].toLongLong()};
    return counts;
}

template <typename Tallies>
Counts ProgramCounts(const Tallies& tallies,
                     const std::function<std::string(const CatchTally&)>& key)
{
    Counts counts;
    for (const CatchTally& t : tallies)
        if (t.Catches > 0)
            counts[key(t)] = {t.Catches, t.Fish, t.Released};
    return counts;
}

const QString Sums = "COUNT(*), SUM(FishCount), SUM(CASE WHEN Released THEN FishCount END)";

} // namespace

TEST(CatchBreakdown, EveryGroupingAgreesWithPlainSqlOverTheFile)
{
    const QString path = MakeFilledYearFile("catch-breakdown");
    std::vector<Catch> catches = SpreadCatches();
    ASSERT_TRUE(AddCatches(path, catches, QDateTime::currentDateTime()));
    CatchBreakdown b;
    ASSERT_TRUE(CatchBreakdownOf({path}, b));
    EXPECT_EQ(b.All.Catches, CatchCount);

    const auto lower = [](const CatchTally& t) {
        return QString::fromStdString(t.Name).toLower().toStdString();
    };
    EXPECT_EQ(ProgramCounts(b.BySpecies, lower),
              SqlCounts(path, "SELECT coalesce(nullif(lower(Species), ''), '(no species)'), " +
                                  Sums + " FROM Catches GROUP BY 1"));
    EXPECT_EQ(ProgramCounts(b.BySpot, lower),
              SqlCounts(path, "SELECT coalesce(nullif(lower(Spot), ''), '(no spot)'), " + Sums +
                                  " FROM Catches GROUP BY 1"));
    EXPECT_EQ(ProgramCounts(b.ByHour, [](const CatchTally& t) { return t.Name.substr(0, 2); }),
              SqlCounts(path, "SELECT substr(CatchTime, 1, 2), " + Sums +
                                  " FROM Catches WHERE CatchTime IS NOT NULL GROUP BY 1"));
    EXPECT_EQ(ProgramCounts(b.ByWaterTemp,
                            [](const CatchTally& t) {
                                return t.BandLow ? std::to_string(int(*t.BandLow)) : "-";
                            }),
              SqlCounts(path, "SELECT CAST(WaterTemp / 5 AS INT) * 5, " + Sums +
                                  " FROM Catches GROUP BY 1"));

    const QString periods =
        QString::fromUtf8(testenv::FileBytes(QUILLMERE_TESTDATA "/catch_periods.sql"));
    const Counts sql = SqlCounts(path, periods);
    EXPECT_EQ(ProgramCounts(b.ByPeriod, [](const CatchTally& t) { return t.Name; }), sql);
    EXPECT_GE(sql.size(), 4u); // the catches fall in every kind of hour
}
