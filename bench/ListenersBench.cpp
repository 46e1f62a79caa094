// Reading the listening sockets through lsof and through ss, on a machine
// with about 2,000 processes (lsof walks every process's descriptors).

#include "IdleChildren.h"
#include "devservers/linux/LinuxPortSources.h"
#include "processes/Shell.h"

#include <benchmark/benchmark.h>

namespace {

void BM_Listeners_Lsof(benchmark::State& state)
{
    IdleChildren::ensure(static_cast<size_t>(state.range(0)));
    vexel::LsofPortSource source(vexel::Shell::find("lsof"));
    for (auto _ : state)
        benchmark::DoNotOptimize(source.listeners());
}
BENCHMARK(BM_Listeners_Lsof)->Arg(2000)->Unit(benchmark::kMillisecond)->Repetitions(3)->ReportAggregatesOnly(true);

void BM_Listeners_Ss(benchmark::State& state)
{
    IdleChildren::ensure(static_cast<size_t>(state.range(0)));
    vexel::SsPortSource source(vexel::Shell::find("ss"));
    for (auto _ : state)
        benchmark::DoNotOptimize(source.listeners());
}
BENCHMARK(BM_Listeners_Ss)->Arg(2000)->Unit(benchmark::kMillisecond)->Repetitions(3)->ReportAggregatesOnly(true);

} // namespace
