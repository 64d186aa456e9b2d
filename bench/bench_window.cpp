// How quickly the main window answers a click on the next-month button: the year tables of
// two months, the month's 37 cells, the selected day's forecast, the details and the moon
// picture, and the repaint of the window (offscreen).
#include "app/appstate.h"
#include "app/frmcalendar.h"
#include "app/settingsio.h"

#include <QApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <chrono>

namespace {

void BM_IncMonthAndRepaint(benchmark::State& state)
{
    AppState app;
    WriteFirstStartValues(app.Store);
    LoadSettings(app.Config, app.Store);
    FrmCalendar window(app);
    window.show();
    // One click per repetition, timed from the click to the end of the repaint.
    for (auto _ : state) {
        const auto start = std::chrono::steady_clock::now();
        window.IncMonth_Click();
        window.repaint();
        QApplication::processEvents();
        state.SetIterationTime(
            std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    }
}

} // namespace

// The median of 100 single clicks (with the mean and spread beside it).
BENCHMARK(BM_IncMonthAndRepaint)
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
    QApplication qapp(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
