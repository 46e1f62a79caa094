// Writes a full year of history as the desktop app leaves it after running
// all year: hourly points for 365 days, ten-minute points for 35 days, minutes
// for 49 hours and 5-second samples for 3 hours, eight apps with every point,
// each tier rolled up to its current bucket. For timing the history and
// spikes reports on a full file.
// Usage: vexel_make_year_history <data folder> [now]

#include "history/HistoryStore.h"
#include "monitor/Monitor.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

using namespace vexel;

constexpr int appCount = 8;

// A working day's shape, with an afternoon build storm on each fifth day.
double busyness(double t)
{
    const double hour = std::fmod(t / 3600, 24);
    const bool working = hour >= 9 && hour < 18;
    const bool storm = std::fmod(std::floor(t / 86400), 5) == 0 && hour >= 14 && hour < 14.5;
    return storm ? 0.9 : (working ? 0.35 : 0.05) + 0.05 * std::sin(t / 977);
}

void writeTier(HistoryStore& store, HistoryTier tier, double from, double to, double step)
{
    for (double t = from; t < to; t += step) {
        const double busy = busyness(t);
        SysPoint sys;
        sys.t = t;
        sys.dur = step;
        sys.cpu = busy;
        sys.cpuMax = std::min(1.0, busy * 1.2);
        sys.mem = 0.6;
        sys.memMax = 0.62;
        sys.diskR = 2e5 * step;
        sys.diskW = 4e5 * step * (busy > 0.8 ? 40 : 1);
        sys.netIn = 1e5 * step;
        sys.netOut = 2e4 * step;
        sys.power = -8 - 20 * busy;
        sys.battery = 80;
        std::vector<AppPoint> apps;
        for (int a = 0; a < appCount; ++a) {
            const double share = busy * 8 / (a + 2.0);
            apps.push_back({t, step, "app:demo." + std::to_string(a), "Demo App " + std::to_string(a), share,
                share * 1.1, 3e8, share * 4 * step, 1e4 * step, 1e4 * step});
        }
        store.insert(tier, sys, apps);
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2) {
        std::fputs("usage: vexel_make_year_history <data folder> [now]\n", stderr);
        return 2;
    }
    const double now = argc > 2 ? std::strtod(argv[2], nullptr) : currentTime();
    const std::string file = std::string(argv[1]) + "/history.sqlite";
    HistoryStore store(file, HistoryAccess::readWrite);
    // Compaction rolls every ended bucket up at once, so each tier runs up to
    // the start of its current bucket (its watermark) and back as far as it is
    // kept; only the raw samples reach the present.
    store.batch([&] {
        for (const auto tier : {HistoryTier::hour, HistoryTier::tenMinutes, HistoryTier::minute}) {
            const double size = bucketSeconds(tier);
            const double edge = std::floor(now / size) * size;
            writeTier(store, tier, edge - std::floor(keepSeconds(tier, 365) / size) * size, edge, size);
            store.setMeta("rolled" + std::to_string(static_cast<int>(tier)), edge);
        }
        const double rawStart = std::floor((now - keepSeconds(HistoryTier::raw, 365)) / 5) * 5;
        writeTier(store, HistoryTier::raw, rawStart, now, 5);
    });
    std::printf("%s: %lld hourly, %lld ten-minute, %lld minute, %lld raw points; %lld bytes\n", file.c_str(),
        static_cast<long long>(store.rowCount(HistoryTier::hour, HistoryTable::sys)),
        static_cast<long long>(store.rowCount(HistoryTier::tenMinutes, HistoryTable::sys)),
        static_cast<long long>(store.rowCount(HistoryTier::minute, HistoryTable::sys)),
        static_cast<long long>(store.rowCount(HistoryTier::raw, HistoryTable::sys)),
        static_cast<long long>(store.fileBytes()));
    return 0;
}
