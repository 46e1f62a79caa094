// One sample of the live machine as the desktop app takes it between the
// costly readings: the process table, rates, grouping and the system reading,
// without other users' figures and without per-process network.

#include "monitor/Monitor.h"

#include <benchmark/benchmark.h>

namespace {

void BM_Monitor_SampleLive(benchmark::State& state)
{
    auto monitor = vexel::Monitor::live();
    double now = vexel::currentTime();
    for (int i = 0; i < 2; ++i)
        benchmark::DoNotOptimize(monitor->sample(now += 1, {}));
    for (auto _ : state)
        benchmark::DoNotOptimize(monitor->sample(now += 1, {}));
}
BENCHMARK(BM_Monitor_SampleLive)->Unit(benchmark::kMillisecond)->Repetitions(5)->ReportAggregatesOnly(true);

} // namespace
