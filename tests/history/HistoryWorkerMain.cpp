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

constexpr double firstSample = 1'767'225'600; // the writer's first sample, 1 January 2026

int write(const char* file)
{
    HistoryStore store(file, false);
    const auto last = store.points(HistoryTier::raw, 0, 1e12);
    // Resume at the next whole minute after the last sample that was committed.
    double t = last.empty() ? firstSample : std::ceil((last.back().t + 5) / 60) * 60;
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

// Samples written so far, from the newest raw sample (raw rows outlive every roll-up).
double samplesUpTo(const HistoryStore& store)
{
    const auto raw = store.points(HistoryTier::raw, 0, 1e12);
    return raw.empty() ? 0 : (raw.back().t - firstSample) / 5 + 1;
}

// Polls the stitched hourly series: every byte ever written is in it exactly
// once, however far the writer's compactions have got.
int read(const char* file, int times)
{
    try {
        HistoryStore store(file, true);
        for (int i = 0; i < times; ++i) {
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
    HistoryStore store(file, false);
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
            store.batch([&] {
                for (int i = 0; i < 12; ++i)
                    sampleOnce();
            });
        } else {
            for (int i = 0; i < 12; ++i)
                store.batch(sampleOnce);
        }
        store.compact(t, 365);
    }
    std::printf("%.0f\n", writtenBytes() - before);
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc >= 3 && std::string(argv[1]) == "write")
        return write(argv[2]);
    if (argc >= 4 && std::string(argv[1]) == "measure")
        return measure(argv[2], std::string(argv[3]) == "per-minute");
    if (argc >= 4 && std::string(argv[1]) == "read")
        return read(argv[2], std::atoi(argv[3]));
    std::fprintf(stderr, "usage: history_worker write FILE | read FILE N\n");
    return 2;
}
