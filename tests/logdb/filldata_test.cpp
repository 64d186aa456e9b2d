// SPDX-License-Identifier: GPL-3.0-or-later
// The year fill on real files, read back with plain SQL: one record per day with the day's
// forecast, the daylight-saving days against the engine's own sunrise, the missing events, and
// nothing kept when a record cannot be saved.
#include "astro/astronomy.h"
#include "calendar/calendar.h"
#include "db/datacontrol.h"
#include "logdb/filldata.h"
#include "logdb/logfiles.h"
#include "support/filledyear.h"
#include "support/logfixture.h"
#include "support/testenv.h"

#include <QTime>

#include <gtest/gtest.h>

using namespace logtest;

namespace {

// Pittsburgh, PA, with the main window in daylight-saving mode.
Astronomy Pittsburgh()
{
    Astronomy engine;
    engine.Site.SetPlace(80.0, 40.44, 5);
    engine.Site.DstOffsetDays = -60 / 1440.0;
    engine.Site.AMPM = true;
    return engine;
}

// Hours of a stored "HH:MM:SS".
double Hours(const QVariant& stored)
{
    return QTime::fromString(stored.toString(), "HH:mm:ss").msecsSinceStartOfDay() / 3600000.0;
}

// The day's sunrise as the engine gives it with the offset given.
double SunriseWith(Astronomy engine, const Calendar& cal, int d, double dstOffsetDays)
{
    engine.Site.DstOffsetDays = dstOffsetDays;
    engine.ComputeSunDay(cal.YearStartJD + d - 1);
    return engine.Forecast.SunEvents.Horizon.RiseTime;
}

} // namespace

// Fills of 2024 and of 2023 with a saving period spanning the new year (which gives no day the
// offset): a record per day on its own date, an hour later in the daylight-saving days, -1 for
// missing events, the angler's columns empty, the observer as it was.
TEST(FillYear, WritesEachDayOnItsDateWithTheSavingHourAndMissingEvents)
{
    for (const int year : {2024, 2023}) {
        Astronomy engine = Pittsburgh();
        Calendar cal = YearCalendar(engine, year, 0);
        if (year == 2023)
            std::tie(cal.DstStartDay, cal.DstEndDay) = std::pair{300, 100};
        int reported = 0;
        const QString path = CreateYearFile(testenv::FreshDir("fill"), year).Path;
        DataControl data0;
        ASSERT_TRUE(FillYearFile(data0, path, engine, cal, -60, [&](int day, int days) {
            EXPECT_EQ(day, ++reported);
            EXPECT_EQ(days, cal.YearSlots - 1);
        }));
        EXPECT_EQ(reported, cal.YearSlots - 1);
        EXPECT_DOUBLE_EQ(engine.Site.DstOffsetDays, -60 / 1440.0);
        const auto rows = PlainRows(path, "select JulianDate, SunRise, DayOfWeek_ from table1 "
                                          "order by JulianDate");
        ASSERT_EQ(int(rows.size()), cal.YearSlots - 1);
        EXPECT_EQ(rows.back()[0], QString("%1-12-31").arg(year));
        EXPECT_EQ(rows[69][2].toInt(), year == 2024 ? 1 : 7); // Sun 10 Mar 2024, Sat 11 Mar 2023
        const int S = cal.DstStartDay, E = cal.DstEndDay;
        for (int d : {1, S - 1, S, (S + E) / 2, E - 1, E, 365}) {
            const bool saving = S < E && d >= S && d < E;
            EXPECT_NEAR(Hours(rows[std::size_t(d - 1)][1]),
                        SunriseWith(Pittsburgh(), cal, d, 0.0) + (saving ? 1.0 : 0.0), 2 / 60.0)
                << year << " day " << d;
        }
        // A year has about a dozen days without moonrise and as many without moonset, a dozen
        // perigees and apogees with a day marked beside each; no angler's entries yet.
        const auto seen = PlainRows(path, "select sum(MoonRise = -1), sum(MoonSet = -1), "
                                          "sum(Minor1 < 0 OR Minor2 < 0), sum(Perigee = 1), "
                                          "sum(Perigee = 2), sum(Perigee = -1), count(TotalTaken) "
                                          "+ count(Notes) from table1")[0];
        const int least[] = {10, 10, 1, 12, 12, 24};
        for (std::size_t i = 0; i < std::size(least); ++i)
            EXPECT_GE(seen[i].toInt(), least[i]) << year << " count " << i;
        EXPECT_EQ(seen[6].toInt(), 0);
    }
}

TEST(FillYear, ARecordThatCannotBeSavedLeavesNoRecordAndRestoresTheObserver)
{
    const QString path = CreateYearFile(testenv::FreshDir("fill-fails"), 2024).Path;
    // The engine refuses the record of 1 July, half-way through the year.
    PlainExec(path, DiskFullOnJuly1);
    Astronomy engine = Pittsburgh();
    const Calendar cal = YearCalendar(engine, 2024, 0);
    DataControl data0;
    const DbResult filled = FillYearFile(data0, path, engine, cal, -60);
    EXPECT_FALSE(filled);
    EXPECT_TRUE(filled.Message.contains("disk is full")) << filled.Message.toStdString();
    EXPECT_EQ(CountRows(path, "table1"), 0);
    EXPECT_DOUBLE_EQ(engine.Site.DstOffsetDays, -60 / 1440.0);
}
