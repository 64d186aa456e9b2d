// SPDX-License-Identifier: GPL-3.0-or-later
// Per-call cost of the positions: the Sun (195 VSOP87 terms with nutation), the Moon
// (120 periodic terms with nutation and the low-precision Sun), and nutation alone.
#include "astro/astronomy.h"

#include <benchmark/benchmark.h>

namespace {
template <typename Call> void Run(benchmark::State& state, Call call)
{
    Astronomy a;
    double jd = 2460310.5;
    for (auto _ : state) {
        benchmark::DoNotOptimize(call(a, jd));
        jd += 0.37; // a new instant each call, so nothing is reused
    }
}

void BM_SunPosition(benchmark::State& s)
{
    Run(s, [](Astronomy& a, double jd) { return a.SunPosition(jd); });
}
void BM_MoonPosition(benchmark::State& s)
{
    Run(s, [](Astronomy& a, double jd) { return a.MoonPosition(jd); });
}
void BM_ComputeNutation(benchmark::State& s)
{
    Run(s, [](Astronomy& a, double jd) {
        a.ComputeNutation(jd);
        return a.NutationLongitude;
    });
}
} // namespace

BENCHMARK(BM_SunPosition);
BENCHMARK(BM_MoonPosition);
BENCHMARK(BM_ComputeNutation);
BENCHMARK_MAIN();
