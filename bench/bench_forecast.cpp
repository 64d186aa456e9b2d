// SPDX-License-Identifier: GPL-3.0-or-later
// Cost of one day's forecast (ComputeSunDay + ComputeDay): alone, on days far apart so that
// nothing is reused, and over consecutive days as the month list, the year fill and the
// command line walk them (positions at 0h of neighbouring days reused); and the command
// line's whole row, with the year table's marks.
#include "astro/timebase.h"
#include "cli/common/forecastrun.h"

#include <benchmark/benchmark.h>

#include <chrono>

namespace {

ForecastPlace Alexandria()
{
    ForecastPlace place;
    place.Longitude = 92.42;
    place.Latitude = 31.25;
    place.TimeZone = 6;
    return place;
}

void RunDays(benchmark::State& state, double step)
{
    ForecastRun run(Alexandria());
    double J = CivilToJd(1950, 1, 1);
    for (auto _ : state) {
        run.Engine.ComputeSunDay(J);
        run.Engine.ComputeDay(J);
        benchmark::DoNotOptimize(run.Engine.Forecast);
        J += step;
    }
}

void BM_DayForecastAlone(benchmark::State& state) { RunDays(state, 37.0); }
void BM_DayForecastSequential(benchmark::State& state) { RunDays(state, 1.0); }

void BM_CommandLineRowSequential(benchmark::State& state)
{
    ForecastRun run(Alexandria());
    using namespace std::chrono;
    sys_days day{year{1950} / 1 / 1};
    for (auto _ : state) {
        const year_month_day ymd{day};
        benchmark::DoNotOptimize(
            run.Day(int(ymd.year()), int(unsigned(ymd.month())), int(unsigned(ymd.day()))));
        day += days{1};
    }
}

} // namespace

BENCHMARK(BM_DayForecastAlone)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_DayForecastSequential)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_CommandLineRowSequential)->Unit(benchmark::kMicrosecond);
BENCHMARK_MAIN();
