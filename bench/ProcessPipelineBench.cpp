// One refresh of the process table as the monitor does it: the snapshot of
// every process, the rate tracker and the grouping into apps, beside a floor
// that only opens, reads and closes /proc/<pid>/stat of every process.
// Idle children are spawned so that the machine holds about 500 or 2,000 processes.

#include "IdleChildren.h"
#include "grouping/AppGrouper.h"
#include "grouping/linux/LinuxIdentityRules.h"
#include "grouping/linux/LiveDesktopIndex.h"
#include "monitor/BundleNames.h"
#include "processes/linux/LiveProcessSource.h"

#include <benchmark/benchmark.h>

#include <dirent.h>
#include <malloc.h>
#include <unistd.h>
#include <vector>

namespace {

double now()
{
    timespec time{};
    ::clock_gettime(CLOCK_REALTIME, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

void BM_ProcessPipeline_Steady(benchmark::State& state)
{
    IdleChildren::ensure(static_cast<size_t>(state.range(0)));
    const size_t heapBefore = ::mallinfo2().uordblks;
    vexel::LiveProcessSource source;
    vexel::RateTracker tracker;
    vexel::BundleNames names;
    vexel::LinuxIdentityRules rules(
        vexel::liveDesktopIndex(), [&](const std::string& path) { return names.name(path); });
    vexel::IdentityCache cache;
    size_t processes = 0;
    // Two warm-up refreshes fill the caches; then each refresh is one tick.
    for (int i = 0; i < 2; ++i) {
        const auto records = source.snapshot(vexel::ProcessScope::everyone);
        benchmark::DoNotOptimize(
            vexel::AppGrouper::group(records, tracker.update(records, std::nullopt, now()), rules, &cache));
    }
    const size_t heapWarm = ::mallinfo2().uordblks;
    for (auto _ : state) {
        const auto records = source.snapshot(vexel::ProcessScope::everyone);
        const auto rates = tracker.update(records, std::nullopt, now());
        const auto groups = vexel::AppGrouper::group(records, rates, rules, &cache);
        benchmark::DoNotOptimize(groups);
        processes = records.size();
    }
    state.counters["processes"] = static_cast<double>(processes);
    state.counters["us_per_process"]
        = benchmark::Counter(static_cast<double>(processes) * static_cast<double>(state.iterations()),
            benchmark::Counter::kIsRate | benchmark::Counter::kInvert, benchmark::Counter::kIs1000);
    state.counters["state_kB"] = static_cast<double>(heapWarm - heapBefore) / 1024.0;
}
BENCHMARK(BM_ProcessPipeline_Steady)
    ->Arg(500)
    ->Arg(2000)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(5)
    ->ReportAggregatesOnly(true);

void BM_ProcStat_Floor(benchmark::State& state)
{
    IdleChildren::ensure(static_cast<size_t>(state.range(0)));
    std::string buffer;
    size_t processes = 0;
    for (auto _ : state) {
        processes = 0;
        DIR* dir = ::opendir("/proc");
        while (const dirent* entry = ::readdir(dir)) {
            if (entry->d_name[0] < '0' || entry->d_name[0] > '9')
                continue;
            if (vexel::Files::readInto(std::string("/proc/") + entry->d_name + "/stat", buffer, 4096))
                ++processes;
        }
        ::closedir(dir);
        benchmark::DoNotOptimize(buffer);
    }
    state.counters["processes"] = static_cast<double>(processes);
}
BENCHMARK(BM_ProcStat_Floor)
    ->Arg(500)
    ->Arg(2000)
    ->Unit(benchmark::kMillisecond)
    ->Repetitions(5)
    ->ReportAggregatesOnly(true);

} // namespace
