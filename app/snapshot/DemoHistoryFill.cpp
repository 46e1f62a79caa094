#include "snapshot/DemoHistoryFill.h"

#include "history/FramePoints.h"
#include "history/HistoryStore.h"
#include "synth/DemoHistory.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace vexel {

namespace {

constexpr double day = 86400;
constexpr double minuteDays = 2;
constexpr double tenMinuteDays = 35;

// Each app's part of the machine's load: the busiest takes the most.
constexpr std::array<double, 6> shares{0.34, 0.22, 0.14, 0.1, 0.06, 0.04};

SysPoint stretched(SysPoint point, double seconds)
{
    const double scale = seconds / point.dur;
    point.dur = seconds;
    for (auto* amount : {&point.diskR, &point.diskW, &point.netIn, &point.netOut})
        *amount *= scale;
    return point;
}

std::vector<AppPoint> appPoints(const SysPoint& sys, const std::vector<AppGroup>& apps, int cores)
{
    std::vector<AppPoint> points;
    for (size_t i = 0; i < apps.size() && i < shares.size(); ++i) {
        AppPoint point;
        point.t = sys.t;
        point.dur = sys.dur;
        point.app = apps[i].id;
        point.name = apps[i].name;
        point.cpu = sys.cpu * cores * shares.at(i);
        point.cpuMax = sys.cpuMax * cores * shares.at(i);
        point.mem = static_cast<double>(apps[i].memory);
        point.disk = (sys.diskR + sys.diskW) * shares.at(i);
        point.net = (sys.netIn + sys.netOut) * shares.at(i);
        point.energy = std::abs(sys.power.value_or(0)) * sys.dur * shares.at(i);
        points.push_back(std::move(point));
    }
    return points;
}

// The curve bent over its last hour to meet the live world's reading, so
// that the history and the live pages agree where they join.
SysPoint meeting(SysPoint point, const SysPoint& end, const SysPoint& live, double now)
{
    const double weight = std::exp(-(now - point.t) / 1200);
    const auto bend
        = [weight](double value, double from, double to) { return std::clamp(value + (to - from) * weight, 0.0, 1.0); };
    point.cpu = bend(point.cpu, end.cpu, live.cpu);
    point.cpuMax = std::max(point.cpu, bend(point.cpuMax, end.cpuMax, live.cpuMax));
    point.mem = bend(point.mem, end.mem, live.mem);
    point.memMax = std::max(point.mem, bend(point.memMax, end.memMax, live.memMax));
    for (auto field : {&SysPoint::diskR, &SysPoint::diskW, &SysPoint::netIn, &SysPoint::netOut}) {
        const double rate = point.*field / point.dur;
        const double change = live.*field / std::max(live.dur, 1.0) - end.*field / end.dur;
        point.*field = std::max(0.0, rate + change * weight) * point.dur;
    }
    return point;
}

} // namespace

void fillDemoHistory(
    const VexelPaths& paths, const Frame& frame, const TimeZone& zone, const std::vector<AppGroup>& apps, int cores)
{
    HistoryStore store(paths.history(), HistoryAccess::readWrite);
    const double now = frame.time;
    const SysPoint live = historyPoints(frame).sys;
    const SysPoint end = DemoHistory::sample(now, zone, now);
    const double minuteStart = std::floor((now - minuteDays * day) / 60) * 60;
    const double tenMinuteStart = std::floor((now - tenMinuteDays * day) / 600) * 600;
    // Written as samples and compacted as a recorder's store is, so that its
    // tiers and their edges are the ones a real file has.
    store.batch([&] {
        for (double t = tenMinuteStart; t < minuteStart; t += 600) {
            const SysPoint point = stretched(DemoHistory::sample(t, zone, now), 600);
            store.append(point, appPoints(point, apps, cores));
        }
        // The recorded ticks already hold the last minutes.
        for (double t = minuteStart; t + 120 < now; t += 60) {
            const SysPoint point = meeting(DemoHistory::sample(t, zone, now), end, live, now);
            store.append(point, appPoints(point, apps, cores));
        }
    });
    store.compact(now, 365);
}

} // namespace vexel
