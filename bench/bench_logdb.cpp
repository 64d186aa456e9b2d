// Cost of filling a year file of the fishing log: a year of day forecasts saved in one
// transaction, the computing part alone, and the whole Create (copy of the template, the year
// tables and the fill).
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
        Astronomy engine = Pittsburgh();
        FreshYearFile(folder.path(), data0);
        const Calendar cal = YearCalendar(engine, 2024, 0);
        if (!FillYear(engine, cal, -60, data0))
            state.SkipWithError("fill failed");
    }
}

} // namespace

BENCHMARK(BM_FillYear)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_YearOfDayRecords)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_CreateAndFillYear)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv); // the SQL driver is a plugin
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
