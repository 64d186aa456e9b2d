// SPDX-License-Identifier: GPL-3.0-or-later
// Cost of the catch statistics over ten filled year files, each fished every other day and
// holding 300 catches: reading the records and computing every grouping, per day and per
// catch; and reading a day of 20 catches with 20 photos, as the record browser does when it
// moves to that day.
#include "astro/astronomy.h"
#include "calendar/calendar.h"
#include "db/datacontrol.h"
#include "logdb/catchdays.h"
#include "logdb/catches.h"
#include "logdb/catchphotos.h"
#include "logdb/catchtally.h"
#include "logdb/filldata.h"
#include "logdb/logfiles.h"

#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTime>

#include <benchmark/benchmark.h>

namespace {

constexpr int CatchesPerYear = 300;
constexpr int CatchesOnBusyDay = 20;
const QString BusyDay = QStringLiteral("2024-07-04");

// 300 catches over the year: six species, four spots, times round the clock, water from 4 to
// 27 °C; 20 of them, each with a photo, on 4 July.
void AddYearOfCatches(const QString& path)
{
    const QStringList species = {"Pike", "Walleye", "Perch", "Bass", "Crappie", "Muskie"};
    const QStringList spots = {"North bay", "Dam", "Weed bed", "Point"};
    std::vector<Catch> catches;
    for (int i = 0; i < CatchesPerYear; ++i) {
        Catch c;
        const bool busy = i < CatchesOnBusyDay;
        c.Date = busy ? BusyDay
                      : QDate(2024, 1, 1).addDays(i * 366 / CatchesPerYear).toString(Qt::ISODate);
        c.Time = QTime(0, 0).addSecs(i * 4513 % 86400).toString(QStringLiteral("HH:mm:ss"));
        c.Species = species[i % species.size()];
        c.Spot = spots[i % spots.size()];
        c.Count = 1 + i % 3;
        c.Released = i % 4 == 0;
        c.LengthMm = 250 + i % 500;
        c.WaterTemp = 4.0 + (i % 47) / 2.0;
        if (busy)
            c.Photos = {QStringLiteral("photos/2024/catch%1.jpg").arg(i)};
        catches.push_back(c);
    }
    if (!AddCatches(path, catches, QDateTime::currentDateTime()))
        std::abort();
    for (const Catch& c : catches)
        for (const QString& photo : c.Photos) {
            QDir(QFileInfo(path).absolutePath()).mkpath(QFileInfo(photo).path());
            QFile file(QDir(QFileInfo(path).absolutePath()).filePath(photo));
            if (!file.open(QIODevice::WriteOnly) || file.write(QByteArray(200000, 'x')) < 0)
                std::abort();
        }
}

// A filled 2024.mdb with catches on every other day, copied to nine more years' names.
QStringList TenYearFiles(const QString& folder)
{
    Astronomy engine;
    engine.Site.SetPlace(80.0, 40.44, 5);
    const QString first = CreateYearFile(folder, 2024).Path;
    {
        DataControl data0;
        data0.SetDatabaseName(first);
        data0.SetRecordSource(QStringLiteral("select * from table1"));
        if (!data0.Refresh() || !FillYear(engine, YearCalendar(engine, 2024, 0), -60, data0))
            std::abort();
    }
    {
        Database db;
        if (!db.Open(first))
            std::abort();
        QSqlQuery(db.Connection())
            .exec(QStringLiteral("UPDATE table1 SET TotalTaken = DBID % 7, PeakTime = '7:00 AM' "
                                 "WHERE DBID % 2 = 0"));
    }
    AddYearOfCatches(first);
    QStringList paths{first};
    for (int year = 2015; year <= 2023; ++year) {
        paths << QDir(folder).filePath(YearFileName(year));
        QFile::copy(first, paths.back());
    }
    return paths;
}

void BM_CatchStatisticsTenYears(benchmark::State& state)
{
    QTemporaryDir folder;
    const QStringList paths = TenYearFiles(folder.path());
    for (auto _ : state) {
        CatchStatistics stats;
        // Every other day has an entry, and the days of catches besides.
        if (!CatchStatisticsOf(paths, stats) || stats.All.DaysFished < 1830)
            state.SkipWithError("statistics failed");
        benchmark::DoNotOptimize(stats);
    }
}

void BM_CatchBreakdownTenYears(benchmark::State& state)
{
    QTemporaryDir folder;
    const QStringList paths = TenYearFiles(folder.path());
    for (auto _ : state) {
        CatchBreakdown breakdown;
        if (!CatchBreakdownOf(paths, breakdown) || breakdown.All.Catches != 10 * CatchesPerYear)
            state.SkipWithError("breakdown failed");
        benchmark::DoNotOptimize(breakdown);
    }
}

void BM_ReadDayOf20CatchesAndPhotos(benchmark::State& state)
{
    QTemporaryDir folder;
    const QString path = TenYearFiles(folder.path()).front();
    for (auto _ : state) {
        std::vector<Catch> day;
        int found = 0;
        if (!ReadDayCatches(path, BusyDay, day))
            state.SkipWithError("reading failed");
        for (const Catch& c : day)
            for (const QString& photo : c.Photos)
                found += LookUpPhoto(path, photo).Missing ? 0 : 1;
        if (found != CatchesOnBusyDay)
            state.SkipWithError("photos missing");
        benchmark::DoNotOptimize(day);
    }
}

} // namespace

BENCHMARK(BM_CatchStatisticsTenYears)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_CatchBreakdownTenYears)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ReadDayOf20CatchesAndPhotos)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv); // the SQL driver is a plugin
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
