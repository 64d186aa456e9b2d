// SPDX-License-Identifier: GPL-3.0-or-later
// Cost of the year tables that every change of month recomputes (twice: the month before and
// the month shown): the year's events, ratings and holidays, and a whole month draw.
#include "astro/astronomy.h"
#include "calendar/calendar.h"

#include <benchmark/benchmark.h>

namespace {

void BM_SetYearTables(benchmark::State& state)
{
    Astronomy engine;
    Calendar cal;
    int year = FirstYear;
    for (auto _ : state) {
        cal.CurYear = std::int16_t(year);
        cal.SetYearTables(engine, 0);
        benchmark::DoNotOptimize(cal.YearDays.data());
        year = year == LastYear ? FirstYear : year + 1;
    }
}

void BM_MonthChange(benchmark::State& state)
{
    Astronomy engine;
    Calendar cal;
    cal.CurYear = 2024;
    for (auto _ : state) {
        cal.CurMonth = std::int16_t(cal.CurMonth % 12 + 1);
        cal.ComputePrevMonthDays();
        benchmark::DoNotOptimize(cal.DrawMonth(engine, 0, 2026, 11, 23));
    }
}

} // namespace

BENCHMARK(BM_SetYearTables)->Unit(benchmark::kMicrosecond);
BENCHMARK(BM_MonthChange)->Unit(benchmark::kMicrosecond);
BENCHMARK_MAIN();
