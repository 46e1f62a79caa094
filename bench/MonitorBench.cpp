// One sample of the live machine as the desktop app takes it between the
// costly readings: the process table, rates, grouping and the system reading,
// without per-process network. The monitor lives across samples, as in the
// recorder, so what it keeps from tick to tick (descriptors, slow facts) is warm.

#include "IdleChildren.h"
#include "monitor/Monitor.h"

#include <benchmark/benchmark.h>

namespace {

void sampleLive(benchmark::State& state, bool everyone)
{
    auto monitor = vexel::Monitor::live();
    double now = vexel::currentTime();
    for (int i = 0; i < 2; ++i)
        benchmark::DoNotOptimize(monitor->sample(now += 1, {.everyone = everyone}));
    size_t processes = 0;
    for (auto _ : state) {
        const auto frame = monitor->sample(now += 1, {.everyone = everyone});
        processes = frame.records.size();
        benchmark::DoNotOptimize(frame);
    }
    state.counters["processes"] = static_cast<double>(processes);
}

// The user's own processes' memory, on the machine as it is.
void BM_Monitor_SampleLive(benchmark::State& state)
{
    IdleChildren::ensure(0);
    sampleLive(state, false);
}
BENCHMARK(BM_Monitor_SampleLive)->Unit(benchmark::kMillisecond)->Repetitions(5)->ReportAggregatesOnly(true);

// Every user's, on the machine as it is (0) and with idle children making up
// about 500 or 2,000 processes (compare with BM_ProcStat_Floor at the same count).
void BM_Monitor_SampleEveryone(benchmark::State& state)
{
    IdleChildren::ensure(static_cast<size_t>(state.range(0)));
    sampleLive(state, true);
}
BENCHMARK(BM_Monitor_SampleEveryone)->Apply(atProcessCounts)->Unit(benchmark::kMillisecond);

} // namespace
