// A second process for the crash-safety test: "write FILE" appends minutes of
// 5-second samples and compacts after each, forever, resuming the simulated
// clock where the file ends, and says "committed" on its output once its
// first minute is in the file; "read FILE N" polls the series N times and
// exits 1 on any error. The test kills the writer at random moments.

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

// Samples written so far, from the newest raw sample (raw rows outlive every roll-up).
double samplesUpTo(const HistoryStore& store)
{
    const auto raw = store.series(HistoryTier::raw, 0, 1e12);
    return raw.empty() ? 0 : (raw.back().t - firstSample) / 5 + 1;
}

// Polls the stitched hourly series: every byte ever written is in it exactly
// once, however far the writer's compactions have got. Each poll opens the
// file afresh, as each report of the command line and the MCP server does.
int read(const char* file, int times)
{
    try {
        for (int i = 0; i < times; ++i) {
            const HistoryStore store(file, HistoryAccess::readOnly);
            const double before = samplesUpTo(store);
            double bytes = 0;
            for (const auto& hour : store.series(HistoryTier::hour, 0, 1e12))
                bytes += hour.diskW;
            const double after = samplesUpTo(store);
            if (before > 0 && (bytes < before * 1000 || bytes > after * 1000)) {
                std::fprintf(stderr, "series holds %.0f bytes for %.0f to %.0f samples\n", bytes, before, after);
                return 3;
            }
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
