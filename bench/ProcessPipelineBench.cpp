// One refresh of the process table as the monitor does it: the snapshot of
// every process, the rate tracker and the grouping into apps, beside a floor
// that only opens, reads and closes /proc/<pid>/stat of every process and one
// that keeps those files open. Idle children are spawned so that the machine
// holds about 500 or 2,000 processes (argument 0: the machine as it is).

#include "IdleChildren.h"
#include "grouping/AppGrouper.h"
#include "grouping/linux/LinuxIdentityRules.h"
#include "grouping/linux/LiveDesktopIndex.h"
#include "monitor/BundleNames.h"
#include "processes/linux/LiveProcessSource.h"
#include "processes/linux/ProcListing.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <malloc.h>
#include <unistd.h>
#include <unordered_map>
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
BENCHMARK(BM_ProcessPipeline_Steady)->Apply(atProcessCounts)->Unit(benchmark::kMillisecond);

// Runs each process's `read(name)` over a readdir of /proc, as plainly as C
// would, at every iteration; `read` says whether it got the file.
template <typename Read> void everyProcess(benchmark::State& state, Read read)
{
    IdleChildren::ensure(static_cast<size_t>(state.range(0)));
    size_t processes = 0;
    for (auto _ : state) {
        processes = 0;
        DIR* dir = ::opendir("/proc");
        while (const dirent* entry = ::readdir(dir)) {
            if (entry->d_name[0] >= '0' && entry->d_name[0] <= '9' && read(entry->d_name))
                ++processes;
        }
        ::closedir(dir);
    }
    state.counters["processes"] = static_cast<double>(processes);
}

// The floor: what any monitor pays to list /proc and open, read and close
// every process's stat file.
void BM_ProcStat_Floor(benchmark::State& state)
{
    char path[300];
    char buffer[4096];
    everyProcess(state, [&](const char* name) {
        std::snprintf(path, sizeof path, "/proc/%s/stat", name);
        const int fd = ::open(path, O_RDONLY | O_CLOEXEC);
        if (fd < 0)
            return false;
        const bool got = ::read(fd, buffer, sizeof buffer) > 0;
        ::close(fd);
        benchmark::DoNotOptimize(buffer);
        return got;
    });
}
BENCHMARK(BM_ProcStat_Floor)->Apply(atProcessCounts)->Unit(benchmark::kMillisecond);

// Each process's `file` through a descriptor opened at its first sight and
// kept, read with pread from offset 0.
void readKept(benchmark::State& state, const char* file)
{
    char path[300];
    char buffer[4096];
    std::unordered_map<int, int> kept; // pid → descriptor
    everyProcess(state, [&](const char* name) {
        auto [slot, isNew] = kept.try_emplace(std::atoi(name), -1);
        if (isNew) {
            std::snprintf(path, sizeof path, "/proc/%s/%s", name, file);
            slot->second = ::open(path, O_RDONLY | O_CLOEXEC);
        }
        const bool got = slot->second >= 0 && ::pread(slot->second, buffer, sizeof buffer, 0) > 0;
        benchmark::DoNotOptimize(buffer);
        return got;
    });
    for (const auto& [pid, fd] : kept)
        if (fd >= 0)
            ::close(fd);
}

// The floor for a reader that keeps its descriptors.
void BM_ProcStat_KeptFloor(benchmark::State& state)
{
    readKept(state, "stat");
}
BENCHMARK(BM_ProcStat_KeptFloor)->Apply(atProcessCounts)->Unit(benchmark::kMillisecond);

// The same with each process's schedstat, the file Vexel reads first to learn
// whether a single-threaded process ran at all.
void BM_ProcSchedstat_KeptFloor(benchmark::State& state)
{
    readKept(state, "schedstat");
}
BENCHMARK(BM_ProcSchedstat_KeptFloor)->Apply(atProcessCounts)->Unit(benchmark::kMillisecond);

// Listing /proc alone: readdir as the floors do it, and ProcListing's one
// getdents64 buffer sized for the machine.
void BM_ProcListing_Readdir(benchmark::State& state)
{
    everyProcess(state, [](const char*) { return true; });
}
BENCHMARK(BM_ProcListing_Readdir)->Arg(500)->Arg(2000)->Unit(benchmark::kMicrosecond);

void BM_ProcListing_Getdents(benchmark::State& state)
{
    IdleChildren::ensure(static_cast<size_t>(state.range(0)));
    vexel::ProcListing listing;
    std::vector<int32_t> pids;
    for (auto _ : state)
        benchmark::DoNotOptimize(listing.read("/proc", pids));
    state.counters["processes"] = static_cast<double>(pids.size());
}
BENCHMARK(BM_ProcListing_Getdents)->Arg(500)->Arg(2000)->Unit(benchmark::kMicrosecond);

} // namespace
