// Bytes written to storage per hour of history, as the desktop app would
// write it: one simulated hour of 5-second samples with ten apps each,
// compacted every minute, with a transaction per sample or one per minute
// that also compacts.
// Usage: vexel_measure_history_writes FILE per-sample|per-minute

#include "history/HistoryStore.h"

#include <cstdio>
#include <string>

using namespace vexel;

namespace {

// Bytes this process has written to storage, from /proc/self/io.
double writtenBytes()
{
    std::FILE* io = std::fopen("/proc/self/io", "r");
    if (io == nullptr)
        return -1;
    char line[256];
    double bytes = -1;
    while (std::fgets(line, sizeof line, io) != nullptr) {
        if (std::sscanf(line, "write_bytes: %lf", &bytes) == 1)
            break;
    }
    std::fclose(io);
    return bytes;
}

// One simulated hour of 5-second samples, each in its own transaction or a
// minute's samples in one, compacting every minute as the app does; prints
// the bytes written to storage.
int measure(const char* file, bool batched)
{
    HistoryStore store(file, HistoryAccess::readWrite);
    const double before = writtenBytes();
    double t = 1'767'225'600;
    for (int minute = 0; minute < 60; ++minute) {
        const auto sampleOnce = [&] {
            SysPoint p;
            p.t = t;
            p.dur = 5;
            p.cpu = p.cpuMax = 0.3;
            std::vector<AppPoint> apps;
            for (int a = 0; a < 10; ++a)
                apps.push_back(AppPoint{t, 5, "app:" + std::to_string(a), "App", 0.1 * a, 0.1 * a, 1e8, 1, 1000, 10});
            store.append(p, apps);
            t += 5;
        };
        if (batched) {
            // As the sampler does: the minute's samples and the compaction in one transaction.
            store.batch([&] {
                for (int i = 0; i < 12; ++i)
                    sampleOnce();
                store.compact(t, 365);
            });
            store.vacuum();
        } else {
            for (int i = 0; i < 12; ++i)
                store.batch(sampleOnce);
            store.compact(t, 365);
        }
    }
    std::printf("%.0f\n", writtenBytes() - before);
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 3) {
        std::fputs("usage: vexel_measure_history_writes FILE per-sample|per-minute\n", stderr);
        return 2;
    }
    return measure(argv[1], std::string(argv[2]) == "per-minute");
}
