#include "support/HistoryFixture.h"

#include "history/HistoryStore.h"

#include <cmath>
#include <fstream>

namespace vexel::testing {

void writeHistory(const std::filesystem::path& file, double now)
{
    HistoryStore store(file, HistoryAccess::readWrite);
    const double end = std::floor(now / 60) * 60;
    store.batch([&] {
        for (int ago = historyMinutes; ago >= 1; --ago) {
            const double t = end - ago * 60.0;
            const bool spiking = ago <= spikeStartsMinutesAgo && ago > spikeStartsMinutesAgo - spikeMinutes;
            SysPoint sys;
            sys.t = t;
            sys.dur = 60;
            sys.cpu = spiking ? 0.9 : 0.1;
            sys.cpuMax = spiking ? 0.95 : 0.12;
            sys.mem = 0.5;
            sys.memMax = 0.55;
            sys.diskW = 1e6;
            sys.diskR = 5e5;
            sys.netIn = 2e6;
            sys.netOut = 1e5;
            const AppPoint chrome{t, 60, "app:com.google.Chrome", "Google Chrome", spiking ? 9.0 : 0.8,
                spiking ? 9.5 : 0.9, 4e9, 60, 0, 1e6};
            const AppPoint node{t, 60, "tool:node", "node", 0.2, 0.3, 2e8, 10, 1e6, 0};
            store.insert(HistoryTier::raw, sys, {chrome, node});
        }
    });
    // As the app leaves it: rolled up into the coarser tiers, old samples expired.
    store.compact(now, 365);
}

void writeCorruptHistory(const std::filesystem::path& file)
{
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << std::string(8192, '\x5a');
}

} // namespace vexel::testing
