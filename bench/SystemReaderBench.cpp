// One warm reading of the live machine, beside a floor that only reads the
// same files into a buffer: the difference is what parsing costs.

#include "io/Files.h"
#include "system/linux/LiveSystemReader.h"

#include <benchmark/benchmark.h>

namespace {

// The files a warm reading opens on a machine without a battery, GPU or
// thermal zones (this VM): everything else is cached.
const std::vector<std::string> warmFiles{"/proc/stat", "/proc/loadavg", "/proc/meminfo", "/proc/pressure/memory",
    "/sys/block/zram0/mm_stat", "/proc/diskstats", "/proc/net/dev"};

void BM_LiveSystemReader_ReadWarm(benchmark::State& state)
{
    vexel::LiveSystemReader reader;
    double now = 1000;
    (void)reader.read(now);
    for (auto _ : state) {
        // A millisecond a call keeps every cache fresh for the whole run.
        now += 0.001;
        benchmark::DoNotOptimize(reader.read(now));
    }
}
BENCHMARK(BM_LiveSystemReader_ReadWarm)->Repetitions(9)->ReportAggregatesOnly(true);

void BM_LiveSystemReader_FilesFloor(benchmark::State& state)
{
    std::string buffer;
    for (auto _ : state) {
        size_t bytes = 0;
        for (const auto& file : warmFiles) {
            if (vexel::Files::readInto(file, buffer, 1024 * 1024))
                bytes += buffer.size();
        }
        benchmark::DoNotOptimize(bytes);
    }
}
BENCHMARK(BM_LiveSystemReader_FilesFloor)->Repetitions(9)->ReportAggregatesOnly(true);

} // namespace
