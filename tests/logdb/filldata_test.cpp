// SPDX-License-Identifier: GPL-3.0-or-later
// The year fill on real files: one record per day with the day's forecast, the
// daylight-saving days, the missing events, and nothing kept when a record cannot be saved.
#include "astro/astronomy.h"
#include "calendar/calendar.h"
#include "db/datacontrol.h"
#include "db/storedforms.h"
#include "logdb/filldata.h"
#include "logdb/logfiles.h"
#include "support/filledyear.h"
#include "support/testenv.h"

#include <QDir>

#include <gtest/gtest.h>

#include <map>

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

struct FilledYear {
    QString Path;
    DbResult Result;
    std::vector<std::vector<QVariant>> Rows; // table1 by date: the columns of Columns below
};

const QString Columns = "JulianDate, SunRise, SunSet, MoonRise, MoonSet, Minor1, Minor2, "
                        "DaylightHours, GraphicType, MoonAge, Perigee, Month, DayOfWeek_, "
                        "CivilTwilight, TotalTaken, Notes";
// clang-format off
enum Column { Date, Rise, Set, MoonRise, MoonSet, Minor1, Minor2, Daylight, Graphic, Age, Perigee,
              Month, Weekday, Civil, Taken, Notes };
// clang-format on

std::vector<std::vector<QVariant>> ReadYear(const QString& path)
{
    Database db;
    RowSet rows;
    EXPECT_TRUE(db.Open(path));
    EXPECT_TRUE(db.Query("select " + Columns + " from table1 order by juliandate", rows));
    return rows.Rows;
}

FilledYear Fill(const QString& folderName, Astronomy& engine, const Calendar& cal,
                const FillProgress& progress = {})
{
    const QString folder = testenv::FreshDir(folderName);
    FilledYear out;
    out.Path = CreateYearFile(folder, cal.CurYear).Path;
    DataControl data0;
    out.Result = FillYearFile(data0, out.Path, engine, cal, -60, progress);
    out.Rows = ReadYear(out.Path);
    return out;
}

// Hours of a stored "HH:MM:SS".
double Hours(const QVariant& stored)
{
    const QStringList parts = stored.toString().split(':');
    return parts[0].toDouble() + parts[1].toDouble() / 60.0 + parts[2].toDouble() / 3600.0;
}

// The day's sunrise as the engine gives it with the offset given.
double SunriseWith(Astronomy engine, const Calendar& cal, int d, double dstOffsetDays)
{
    engine.Site.DstOffsetDays = dstOffsetDays;
    engine.ComputeSunDay(cal.YearStartJD + d - 1);
    return engine.Forecast.SunEvents.Horizon.RiseTime;
}

} // namespace

// One fill of 2024: a record per day on its own date with the day's marks, an hour later in
// the daylight-saving days, -1 for missing events, the angler's columns empty.
TEST(FillYear, WritesEachDayOnItsDateWithTheSavingHourAndMissingEvents)
{
    Astronomy engine = Pittsburgh();
    const Calendar cal = YearCalendar(engine, 2024, 0);
    std::vector<int> reported;
    const FilledYear year = Fill("fill-2024", engine, cal, [&](int day, int days) {
        EXPECT_EQ(days, 366);
        reported.push_back(day);
    });
    ASSERT_TRUE(year.Result) << year.Result.Message.toStdString();
    ASSERT_EQ(year.Rows.size(), 366u);
    EXPECT_EQ(year.Rows[59][Date], "2024-02-29");
    EXPECT_EQ(year.Rows.back()[Date], "2024-12-31");
    EXPECT_EQ(reported.size(), 366u);
    EXPECT_EQ(reported.back(), 366);
    EXPECT_EQ(year.Rows[69][Weekday].toInt(), 1); // 10 March 2024 was a Sunday
    EXPECT_EQ(year.Rows[69][Month].toInt(), 3);
    EXPECT_TRUE(year.Rows[69][Taken].isNull());
    EXPECT_TRUE(year.Rows[69][Notes].isNull());
    EXPECT_DOUBLE_EQ(engine.Site.DstOffsetDays, -60 / 1440.0); // the observer is restored

    const int S = cal.DstStartDay, E = cal.DstEndDay;
    const auto stored = [&](int d) { return Hours(year.Rows[std::size_t(d - 1)][Rise]); };
    const auto standard = [&](int d) { return SunriseWith(Pittsburgh(), cal, d, 0.0); };
    for (int d : {1, S - 1, E, E + 1, cal.YearSlots - 1})
        EXPECT_NEAR(stored(d), standard(d), 1 / 60.0) << "day " << d;
    for (int d : {S, S + 1, (S + E) / 2, E - 1})
        EXPECT_NEAR(stored(d), standard(d) + 1.0, 2 / 60.0) << "day " << d;

    int noMoonrise = 0, noMoonset = 0, noMinor = 0;
    std::map<int, int> perigee; // 1 perigee, 2 apogee, -1 a day beside one
    for (int d = 1; d <= 366; ++d) {
        const auto& row = year.Rows[std::size_t(d - 1)];
        const DayMarks& marks = cal.YearDays[std::size_t(d)];
        ASSERT_EQ(row[Graphic].toInt(), marks.Rating) << d;
        ASSERT_EQ(row[Age].toInt(), marks.MoonAge) << d;
        ASSERT_EQ(row[Perigee].toInt(), marks.Perigee) << d;
        ++perigee[marks.Perigee];
        // Daylight is sunset minus sunrise before the clock texts drop the seconds.
        EXPECT_NEAR(row[Daylight].toDouble(), Hours(row[Set]) - Hours(row[Rise]), 1.01 / 60.0);
        EXPECT_TRUE(StoredTime(row[Civil].toString().section('/', 0, 0).toStdString())
                        .value_or("")
                        .ends_with(":00"));
        noMoonrise += row[MoonRise].toDouble() == -1.0 ? 1 : 0;
        noMoonset += row[MoonSet].toDouble() == -1.0 ? 1 : 0;
        noMinor += row[Minor1].toDouble() < 0 || row[Minor2].toDouble() < 0 ? 1 : 0;
    }
    // A year has about a dozen days without moonrise and as many without moonset.
    EXPECT_GE(noMoonrise, 10);
    EXPECT_GE(noMoonset, 10);
    EXPECT_GE(noMinor, 1);
    EXPECT_GE(perigee[1], 12);
    EXPECT_GE(perigee[2], 12);
    EXPECT_GE(perigee[-1], 24);
}

TEST(FillYear, NoDayGetsTheOffsetWhenTheSavingPeriodSpansTheNewYear)
{
    Astronomy engine = Pittsburgh();
    Calendar cal = YearCalendar(engine, 2023, 0);
    cal.DstStartDay = 300;
    cal.DstEndDay = 100;
    const FilledYear year = Fill("fill-dst-wrap", engine, cal);
    ASSERT_TRUE(year.Result);
    ASSERT_EQ(year.Rows.size(), 365u);
    EXPECT_EQ(year.Rows.back()[Date], "2023-12-31");
    for (int d : {1, 99, 100, 200, 299, 300, 365})
        EXPECT_NEAR(Hours(year.Rows[std::size_t(d - 1)][Rise]), SunriseWith(engine, cal, d, 0.0),
                    1 / 60.0)
            << "day " << d;
}

TEST(FillYear, ARecordThatCannotBeSavedLeavesNoRecordAndRestoresTheObserver)
{
    const QString folder = testenv::FreshDir("fill-fails");
    const QString path = CreateYearFile(folder, 2024).Path;
    // The engine refuses the record of 1 July, half-way through the year.
    PlainExec(path, DiskFullOnJuly1);
    Astronomy engine = Pittsburgh();
    const Calendar cal = YearCalendar(engine, 2024, 0);
    DataControl data0;
    const DbResult filled = FillYearFile(data0, path, engine, cal, -60);
    EXPECT_FALSE(filled);
    EXPECT_TRUE(filled.Message.contains("disk is full")) << filled.Message.toStdString();
    EXPECT_TRUE(ReadYear(path).empty());
    EXPECT_DOUBLE_EQ(engine.Site.DstOffsetDays, -60 / 1440.0);
}
