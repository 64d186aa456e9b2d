// SPDX-License-Identifier: GPL-3.0-or-later
// How quickly the windows answer: a click on the main window's next-month button (the year's
// tables, the month's 37 cells, the selected day's forecast, the details and the moon picture,
// and the repaint of the whole window or of what changed, with the forecasts and year tables
// it computed counted); a pointer move
// along the day graph (Sun and Moon at that moment and the strips and read-outs repainted);
// filling the year calendar (twelve months and the repaint); the real program's start to its
// window's first paint. All offscreen.
#include "astro/timebase.h"
#include "platform/settingsio.h"
#include "ui/calendar/frmcalendar.h"
#include "ui/calendar/frmyearcal.h"
#include "ui/common/appstate.h"
#include "ui/views/daygraph.h"

#include <QApplication>
#include <QLabel>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <chrono>
#include <memory>

namespace {

// The main window the clicks go to, made once so that each repetition times a click on a
// window already in use.
struct ShownWindow {
    AppState App;
    std::unique_ptr<FrmCalendar> Window;
    ShownWindow()
    {
        WriteFirstStartValues(App.Store);
        LoadSettings(App.Config, App.Store);
        Window = std::make_unique<FrmCalendar>(App);
        Window->show();
        QApplication::processEvents();
    }
};

// Made on the first click, gone before the application.
std::unique_ptr<ShownWindow> Shown;

// One click per repetition, timed from the click to the end of the repaint: the whole window
// repainted (argument 1), or only what the click marked for repainting, as the window system
// would have it (argument 0). The engine's and the calendar's own counters say how much work
// each click did.
void BM_IncMonthAndRepaint(benchmark::State& state)
{
    if (!Shown)
        Shown = std::make_unique<ShownWindow>();
    ShownWindow& shown = *Shown;
    FrmCalendar& window = *shown.Window;
    const bool whole = state.range(0) != 0;
    const int computed = shown.App.Astro.DaysComputed, built = shown.App.Cal.YearTableBuilds;
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        window.IncMonth_Click();
        if (whole)
            window.repaint();
        QApplication::processEvents(); // the layout's request
        QEvent paintNow(QEvent::UpdateRequest);
        QApplication::sendEvent(&window, &paintNow);
        state.SetIterationTime(
            std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
    const auto clicks = double(state.iterations());
    state.counters["ComputeDay"] = double(shown.App.Astro.DaysComputed - computed) / clicks;
    state.counters["YearTables"] = double(shown.App.Cal.YearTableBuilds - built) / clicks;
}

// From starting the real program (offscreen) to its main window's first paint, which the
// program reports on its log when asked.
void BM_StartToFirstPaint(benchmark::State& state)
{
    constexpr int WaitMs = 30000;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("QT_LOGGING_RULES"), QStringLiteral("quillmere.startup.info=true"));
    for (auto _ : state) {
        QProcess program;
        program.setProcessEnvironment(env);
        program.setProcessChannelMode(QProcess::MergedChannels);
        const auto start = std::chrono::steady_clock::now();
        program.start(QStringLiteral(QUILLMERE_PROGRAM), {});
        QByteArray said;
        while (!said.contains("first paint") && program.waitForReadyRead(WaitMs))
            said += program.readAll();
        state.SetIterationTime(
            std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
        if (!said.contains("first paint"))
            state.SkipWithError("the program never painted its window");
        program.kill();
        program.waitForFinished();
    }
}

// Times one step from its start to the end of the repaint it causes.
template <typename Step> void TimeEach(benchmark::State& state, Step step)
{
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        step();
        QApplication::processEvents();
        state.SetIterationTime(
            std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
}

void BM_DayGraphPointerMove(benchmark::State& state)
{
    Astronomy engine;
    engine.Site.SetPlace(92.42, 31.25, 6);
    Calendar cal;
    cal.CurYear = 2024;
    cal.CurMonth = 6;
    cal.SetYearTables(engine, 0);
    const double jd = CivilToJd(2024, 6, 20);
    DayGraph graph(engine, {jd, cal.YearDays[172], true, true});
    graph.show();
    double x = 0.0;
    TimeEach(state, [&] {
        x = x >= 6990.0 ? 0.0 : x + 10.0; // one pixel and a half along the line
        graph.PicTi_MouseMove(x, 300.0);
        graph.PicAZ->repaint();
        graph.PicEL->repaint();
        for (int i : {0, 4, 5, 8, 9})
            graph.Label[std::size_t(i)]->repaint();
    });
}

void BM_FillYearCal(benchmark::State& state)
{
    Astronomy engine;
    Calendar cal;
    cal.CurYear = 2024;
    cal.CurMonth = 3;
    FrmYearCal yearCal({cal, engine, 0, [](int) {}, [] {}});
    yearCal.show();
    TimeEach(state, [&] {
        cal.CurYear = std::int16_t(cal.CurYear == 2024 ? 2023 : 2024);
        yearCal.FillYearCal();
        yearCal.repaint();
    });
}

} // namespace

BENCHMARK(BM_StartToFirstPaint)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(1)
    ->Repetitions(20)
    ->ReportAggregatesOnly(true);
BENCHMARK(BM_DayGraphPointerMove)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(1)
    ->Repetitions(100)
    ->ReportAggregatesOnly(true);
BENCHMARK(BM_FillYearCal)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(1)
    ->Repetitions(100)
    ->ReportAggregatesOnly(true);

// The median of 100 single clicks (with the mean and spread beside it), the whole window
// repainted and only what changed.
BENCHMARK(BM_IncMonthAndRepaint)
    ->Arg(1)
    ->Arg(0)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(1)
    ->Repetitions(100)
    ->ReportAggregatesOnly(true);

int main(int argc, char** argv)
{
    // Settings and program folder in a temporary place, windows offscreen.
    QTemporaryDir home;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("XDG_CONFIG_HOME", home.filePath(QStringLiteral("config")).toUtf8());
    qputenv("QUILLMERE_HOME", home.filePath(QStringLiteral("data")).toUtf8());
    qputenv("XDG_RUNTIME_DIR", home.path().toUtf8());
    QApplication qapp(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    Shown.reset();
    benchmark::Shutdown();
    return 0;
}
