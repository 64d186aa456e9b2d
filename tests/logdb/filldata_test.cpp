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

#include <cmath>

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
enum Column {
    Date,
    Rise,
    Set,
    MoonRise,
    MoonSet,
    Minor1,
    Minor2,
    Daylight,
    Graphic,
    Age,
    Perigee,
    Month,
    Weekday,
    Civil,
    Taken,
    Notes
};

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

TEST(FillYear, WritesOneRecordPerDayFromJanuaryFirstToDecemberLast)
{
    Astronomy engine = Pittsburgh();
    const Calendar leap = YearCalendar(engine, 2024, 0);
    std::vector<int> reported;
    const FilledYear y2024 = Fill("fill-2024", engine, leap, [&](int day, int days) {
        EXPECT_EQ(days, 366);
        reported.push_back(day);
    });
    ASSERT_TRUE(y2024.Result) << y2024.Result.Message.toStdString();
    ASSERT_EQ(y2024.Rows.size(), 366u);
    EXPECT_EQ(y2024.Rows.front()[Date], "2024-01-01");
    EXPECT_EQ(y2024.Rows[59][Date], "2024-02-29");
    EXPECT_EQ(y2024.Rows.back()[Date], "2024-12-31");
    EXPECT_EQ(reported.size(), 366u);
    EXPECT_EQ(reported.front(), 1);
    EXPECT_EQ(reported.back(), 366);
    // 10 March 2024 was a Sunday.
    EXPECT_EQ(y2024.Rows[69][Month].toInt(), 3);
    EXPECT_EQ(y2024.Rows[69][Weekday].toInt(), 1);
    // The angler's columns stay empty.
    EXPECT_TRUE(y2024.Rows[69][Taken].isNull());
    EXPECT_TRUE(y2024.Rows[69][Notes].isNull());

    const Calendar common = YearCalendar(engine, 2023, 0);
    const FilledYear y2023 = Fill("fill-2023", engine, common);
    ASSERT_EQ(y2023.Rows.size(), 365u);
    EXPECT_EQ(y2023.Rows.back()[Date], "2023-12-31");
}

TEST(FillYear, DaylightSavingDaysAreAnHourLaterAndTheObserverIsRestored)
{
    Astronomy engine = Pittsburgh();
    const Calendar cal = YearCalendar(engine, 2024, 0);
    const int S = cal.DstStartDay, E = cal.DstEndDay;
    ASSERT_LT(S, E);
    const FilledYear year = Fill("fill-dst", engine, cal);
    ASSERT_TRUE(year.Result) << year.Result.Message.toStdString();
    EXPECT_DOUBLE_EQ(engine.Site.DstOffsetDays, -60 / 1440.0);
    EXPECT_DOUBLE_EQ(engine.Site.ZoneDays, 5 / 24.0);

    const auto stored = [&](int d) { return Hours(year.Rows[std::size_t(d - 1)][Rise]); };
    const auto standard = [&](int d) { return SunriseWith(Pittsburgh(), cal, d, 0.0); };
    const double minute = 1 / 60.0;
    for (int d : {1, S - 1, E, E + 1, cal.YearSlots - 1})
        EXPECT_NEAR(stored(d), standard(d), minute) << "day " << d;
    for (int d : {S, S + 1, (S + E) / 2, E - 1})
        EXPECT_NEAR(stored(d), standard(d) + 1.0, 2 * minute) << "day " << d;
}

TEST(FillYear, NoDayGetsTheOffsetWhenTheSavingPeriodSpansTheNewYear)
{
    Astronomy engine = Pittsburgh();
    Calendar cal = YearCalendar(engine, 2023, 0);
    cal.DstStartDay = 300;
    cal.DstEndDay = 100;
    const FilledYear year = Fill("fill-dst-wrap", engine, cal);
    ASSERT_TRUE(year.Result);
    for (int d : {1, 99, 100, 200, 299, 300, 365})
        EXPECT_NEAR(Hours(year.Rows[std::size_t(d - 1)][Rise]), SunriseWith(engine, cal, d, 0.0),
                    1 / 60.0)
            << "day " << d;
}

TEST(FillYear, StoresTheDaysValuesUnformattedAndMinusOneForMissingEvents)
{
    Astronomy engine = Pittsburgh();
    const Calendar cal = YearCalendar(engine, 2024, 0);
    const FilledYear year = Fill("fill-values", engine, cal);
    ASSERT_TRUE(year.Result);
    int noMoonrise = 0, noMoonset = 0, noMinor = 0, perigees = 0, apogees = 0, beside = 0;
    for (int d = 1; d <= 366; ++d) {
        const auto& row = year.Rows[std::size_t(d - 1)];
        // Each day of the year tables lands on its own date, not the day before or after.
        const DayMarks& marks = cal.YearDays[std::size_t(d)];
        ASSERT_EQ(row[Graphic].toInt(), marks.Rating) << d;
        ASSERT_EQ(row[Age].toInt(), marks.MoonAge) << d;
        ASSERT_EQ(row[Perigee].toInt(), marks.Perigee) << d;
        perigees += marks.Perigee == 1 ? 1 : 0;
        apogees += marks.Perigee == 2 ? 1 : 0;
        beside += marks.Perigee == -1 ? 1 : 0;

        // Daylight is sunset minus sunrise before the clock texts drop the seconds.
        const double hoursOfLight = row[Daylight].toDouble();
        EXPECT_NEAR(hoursOfLight, Hours(row[Set]) - Hours(row[Rise]), 1.01 / 60.0) << d;
        EXPECT_TRUE(
            QString::fromStdString(
                StoredTime(row[Civil].toString().section('/', 0, 0).toStdString()).value_or(""))
                .endsWith(":00"));

        Astronomy check = Pittsburgh();
        check.Site.DstOffsetDays = d >= cal.DstStartDay && d < cal.DstEndDay ? -60 / 1440.0 : 0;
        check.ComputeSunDay(cal.YearStartJD + d - 1);
        EXPECT_DOUBLE_EQ(hoursOfLight, check.Forecast.DayLength) << d;
        check.ComputeDay(cal.YearStartJD + d - 1);
        const MoonEventRecord& m = check.Forecast.MoonEvents;
        const bool noRise = m.RiseFlag == EventFlag::OtherDay;
        const bool noSet = m.SetFlag == EventFlag::OtherDay;
        EXPECT_DOUBLE_EQ(row[MoonRise].toDouble(), noRise ? -1.0 : m.RiseTime) << d;
        EXPECT_DOUBLE_EQ(row[MoonSet].toDouble(), noSet ? -1.0 : m.SetTime) << d;
        EXPECT_DOUBLE_EQ(row[Minor2].toDouble(), std::max(check.Forecast.Minor2, -1.0)) << d;
        noMoonrise += noRise ? 1 : 0;
        noMoonset += noSet ? 1 : 0;
        noMinor += row[Minor1].toDouble() < 0 || row[Minor2].toDouble() < 0 ? 1 : 0;
    }
    // A year has about a dozen days without moonrise and as many without moonset.
    EXPECT_GE(noMoonrise, 10);
    EXPECT_GE(noMoonset, 10);
    EXPECT_GE(noMinor, 1);
    EXPECT_GE(perigees, 12);
    EXPECT_GE(apogees, 12);
    EXPECT_GE(beside, 24);
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
