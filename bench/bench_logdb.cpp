// SPDX-License-Identifier: GPL-3.0-or-later
// Cost of filling a year file of the fishing log: a year of day forecasts saved in one
// transaction, the computing part alone, the whole Create as the program makes it (template
// copied under a temporary name, year tables, fill, sync, rename into place), and compacting
// a filled year (compacted copy synced, the old file copied to .BAK, renamed into place).
// Then the questions asked of a filled year: a selection with five conditions shown in the
// record browser, and the report of the whole year.
#include "astro/astronomy.h"
#include "calendar/calendar.h"
#include "db/datacontrol.h"
#include "logdb/filldata.h"
#include "logdb/logfiles.h"
#include "logdb/logreport.h"
#include "logdb/querybuilder.h"
#include "ui/common/messageservice.h"
#include "ui/log/frmtable1.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
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

// A filled 2024.mdb in the folder.
QString FilledYearFile(const QString& folder)
{
    Astronomy engine = Pittsburgh();
    const Calendar cal = YearCalendar(engine, 2024, 0);
    DataControl data0;
    const CreateYearResult created = CreateYearFile(folder, 2024, [&](const QString& path) {
        return FillYearFile(data0, path, engine, cal, -60);
    });
    if (created.Outcome != CreateYearResult::Status::Created)
        std::abort();
    return created.Path;
}

// "Select Data Where" in the browser with five conditions (months, moon age, illumination,
// waxing, rated days), the chain of steps and the first record of the result shown.
void BM_SelectFiveConditionsAndShow(benchmark::State& state)
{
    QTemporaryDir folder;
    MessageService messages;
    LogState log;
    log.DBPath = FilledYearFile(folder.path());
    Astronomy engine = Pittsburgh();
    const LogContext context{messages, log, engine, 0, -60, 0x80FFFF, 2024, folder.path()};
    frmTable1 browser(context);
    browser.Form_Activate();
    for (int c : {0, 3, 4, 10, 13})
        browser.Check1[std::size_t(c)]->setChecked(true);
    const std::array<std::pair<int, const char*>, 6> values = {
        {{1, "3"}, {2, "9"}, {5, "2"}, {6, "25"}, {7, "5"}, {8, "95"}}};
    for (const auto& [box, text] : values)
        browser.Text6[std::size_t(box)]->setText(QString::fromLatin1(text));
    for (auto _ : state)
        browser.cmdSelect_Click();
    if (!messages.Shown().empty() || browser.Data1.RecordCount() == 0)
        state.SkipWithError("the selection failed");
}

// The report text of the whole year, from opening its record source to the last line.
void BM_YearReport(benchmark::State& state)
{
    QTemporaryDir folder;
    const QString path = FilledYearFile(folder.path());
    for (auto _ : state) {
        DataControl data;
        data.SetDatabaseName(path);
        data.SetRecordSource(QStringLiteral("select * from table1 order by juliandate"));
        if (!data.Refresh() || data.RecordCount() != 366)
            state.SkipWithError("no year to report");
        benchmark::DoNotOptimize(BuildReportText(data, true));
    }
}

} // namespace

BENCHMARK(BM_SelectFiveConditionsAndShow)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_YearReport)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_FillYear)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_YearOfDayRecords)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_CreateAndFillYear)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_CompactYear)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
    // The SQL driver is a plugin; the record browser is a window, shown offscreen.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
