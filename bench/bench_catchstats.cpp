// Cost of the catch statistics over ten filled year files, each fished every other day:
// reading the records and computing every grouping.
#include "astro/astronomy.h"
#include "calendar/calendar.h"
#include "db/datacontrol.h"
#include "logdb/catchdays.h"
#include "logdb/filldata.h"
#include "logdb/logfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSqlQuery>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

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
        if (!CatchStatisticsOf(paths, stats) || stats.All.DaysFished != 1830)
            state.SkipWithError("statistics failed");
        benchmark::DoNotOptimize(stats);
    }
}

} // namespace

BENCHMARK(BM_CatchStatisticsTenYears)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv); // the SQL driver is a plugin
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
