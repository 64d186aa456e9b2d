// Cost of filling a year file of the fishing log: a year of day forecasts saved in one
// transaction, the computing part alone, the whole Create as the program makes it (template
// copied under a temporary name, year tables, fill, sync, rename into place), and compacting
// a filled year (compacted copy synced, the old file copied to .BAK, renamed into place).
#include "astro/astronomy.h"
#include "calendar/calendar.h"
#include "logdb/datacontrol.h"
#include "logdb/filldata.h"
#include "logdb/logfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace {

Astronomy Pittsburgh()
{
    Astronomy engine;
    engine.Site.SetPlace(80.0, 40.44, 5);
    return engine;
}

// A fresh 2024.mdb from the folder's template, open on table1.
void FreshYearFile(const QString& folder, DataControl& data0)
{
    data0.Close();
    QFile::remove(QDir(folder).filePath(YearFileName(2024)));
    data0.SetDatabaseName(CreateYearFile(folder, 2024).Path);
    data0.SetRecordSource(QStringLiteral("select * from table1"));
    if (!data0.Refresh())
        std::abort();
}

void BM_FillYear(benchmark::State& state)
{
    QTemporaryDir folder;
    Astronomy engine = Pittsburgh();
    const Calendar cal = YearCalendar(engine, 2024, 0);
    DataControl data0;
    for (auto _ : state) {
        state.PauseTiming();
        FreshYearFile(folder.path(), data0);
        state.ResumeTiming();
        if (!FillYear(engine, cal, -60, data0))
            state.SkipWithError("fill failed");
    }
}

// The computing part alone: the records of a year without the file.
void BM_YearOfDayRecords(benchmark::State& state)
{
    Astronomy engine = Pittsburgh();
    const Calendar cal = YearCalendar(engine, 2024, 0);
    for (auto _ : state) {
        for (int d = 1; d < cal.YearSlots; ++d)
            benchmark::DoNotOptimize(DayRecord(engine, cal, d));
    }
}

void BM_CreateAndFillYear(benchmark::State& state)
{
    QTemporaryDir folder;
    CreateTemplateFile(QDir(folder.path()).filePath(TemplateFileName));
    DataControl data0;
    for (auto _ : state) {
        state.PauseTiming();
        DeleteYearFile(QDir(folder.path()).filePath(YearFileName(2024)));
        state.ResumeTiming();
        Astronomy engine = Pittsburgh();
        const Calendar cal = YearCalendar(engine, 2024, 0);
        const CreateYearResult created =
            CreateYearFile(folder.path(), 2024, [&](const QString& path) {
                return FillYearFile(data0, path, engine, cal, -60);
            });
        if (created.Outcome != CreateYearResult::Status::Created)
            state.SkipWithError("create failed");
    }
}

void BM_CompactYear(benchmark::State& state)
{
    QTemporaryDir folder;
    Astronomy engine = Pittsburgh();
    const Calendar cal = YearCalendar(engine, 2024, 0);
    DataControl data0;
    const CreateYearResult created = CreateYearFile(folder.path(), 2024, [&](const QString& path) {
        return FillYearFile(data0, path, engine, cal, -60);
    });
    for (auto _ : state) {
        if (!CompactDB(created.Path))
            state.SkipWithError("compaction failed");
    }
}
} // namespace

BENCHMARK(BM_FillYear)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_YearOfDayRecords)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_CreateAndFillYear)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_CompactYear)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv); // the SQL driver is a plugin
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
