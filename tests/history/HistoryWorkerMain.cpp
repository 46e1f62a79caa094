// A second process for the crash-safety test: "write FILE" appends minutes of
// 5-second samples and compacts after each, forever, resuming the simulated
// clock where the file ends, and says "committed" on its output once its
// first minute is in the file. The test kills it.

#include "history/HistoryStore.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

using namespace vexel;

namespace {

constexpr double firstSample = 1'767'225'600; // the writer's first sample, 1 January 2026

int write(const char* file)
{
    HistoryStore store(file, HistoryAccess::readWrite);
    const auto last = store.points(HistoryTier::raw, 0, 1e12);
    // Resume at the next whole minute after the last sample that was committed.
    double t = last.empty() ? firstSample : std::ceil((last.back().t + 5) / 60) * 60;
    bool announced = false;
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
        if (!announced) {
            std::puts("committed");
            std::fflush(stdout);
            announced = true;
        }
    }
}

} // namespace

int main(int argc, char** argv)
{
    if (argc >= 3 && std::string(argv[1]) == "write")
        return write(argv[2]);
    std::fprintf(stderr, "usage: history_worker write FILE\n");
    return 2;
}
