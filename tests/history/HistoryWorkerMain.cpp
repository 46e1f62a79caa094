// A second process for the crash-safety test: "write FILE" appends minutes of
// 5-second samples and compacts after each, forever, resuming the simulated
// clock where the file ends; "read FILE N" polls the series N times and exits
// 1 on any error. The test kills the writer at random moments.

#include "history/HistoryStore.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

using namespace vexel;

namespace {

int write(const char* file)
{
    HistoryStore store(file, false);
    const auto last = store.points(HistoryTier::raw, 0, 1e12);
    double t = last.empty() ? 1'767'225'600 : last.back().t + 5;
    t = std::floor(t / 60) * 60 + 60; // resume at the next whole minute
    while (true) {
        store.batch([&] {
            for (int i = 0; i < 12; ++i, t += 5) {
                SysPoint p;
                p.t = t;
                p.dur = 5;
                p.cpu = p.cpuMax = 0.3;
                p.diskW = 1000;
                store.append(p, {AppPoint{t, 5, "app:w", "W", 0.3, 0.3, 1e6, 1, 1000, 0}});
            }
        });
        store.compact(t, 365);
    }
}

int read(const char* file, int times)
{
    try {
        HistoryStore store(file, true);
        for (int i = 0; i < times; ++i) {
            (void)store.points(HistoryTier::minute, 0, 1e12);
            (void)store.appPoints(HistoryTier::raw, 0, 1e12);
            (void)store.watermark(HistoryTier::minute);
        }
    } catch (const HistoryError& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc >= 3 && std::string(argv[1]) == "write")
        return write(argv[2]);
    if (argc >= 4 && std::string(argv[1]) == "read")
        return read(argv[2], std::atoi(argv[3]));
    std::fprintf(stderr, "usage: history_worker write FILE | read FILE N\n");
    return 2;
}
