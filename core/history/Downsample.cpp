#include "history/Downsample.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace vexel::Downsample {

namespace {

double weightOf(double dur)
{
    return dur > 0 ? dur : 0;
}

double bucketOf(double t, double size)
{
    return std::floor(t / size) * size;
}

// A mean of an optional reading over the points that have it.
struct OptionalMean {
    double sum = 0;
    double weight = 0;
    bool seen = false;

    void add(const std::optional<double>& value, double w)
    {
        if (!value)
            return;
        seen = true;
        sum += *value * w;
        weight += w;
    }
    [[nodiscard]] std::optional<double> mean() const
    {
        if (!seen || weight <= 0)
            return std::nullopt;
        return sum / weight;
    }
};

} // namespace

SysPoint rollup(const std::vector<SysPoint>& points, double t, double size)
{
    SysPoint result;
    result.t = t;
    double total = 0;
    for (const auto& point : points)
        total += weightOf(point.dur);
    if (points.empty() || total <= 0)
        return result;
    result.dur = size > 0 && total >= size ? size : total;
    OptionalMean gpu;
    OptionalMean power;
    OptionalMean battery;
    for (const auto& point : points) {
        const double w = weightOf(point.dur);
        result.cpu += point.cpu * w;
        result.mem += point.mem * w;
        result.swap += point.swap * w;
        result.cpuMax = std::max(result.cpuMax, point.cpuMax);
        result.memMax = std::max(result.memMax, point.memMax);
        result.pressure = std::max(result.pressure, point.pressure);
        result.thermal = std::max(result.thermal, point.thermal);
        result.diskR += point.diskR;
        result.diskW += point.diskW;
        result.netIn += point.netIn;
        result.netOut += point.netOut;
        gpu.add(point.gpu, w);
        power.add(point.power, w);
        battery.add(point.battery, w);
        if (point.gpuMax)
            result.gpuMax = std::max(result.gpuMax.value_or(*point.gpuMax), *point.gpuMax);
    }
    result.cpu /= total;
    result.mem /= total;
    result.swap /= total;
    result.gpu = gpu.mean();
    result.power = power.mean();
    result.battery = battery.mean();
    return result;
}

std::vector<SysPoint> regroup(const std::vector<SysPoint>& points, double size)
{
    std::map<double, std::vector<SysPoint>> buckets;
    for (const auto& point : points)
        buckets[bucketOf(point.t, size)].push_back(point);
    std::vector<SysPoint> result;
    for (const auto& [start, members] : buckets)
        result.push_back(rollup(members, start, size));
    return result;
}

std::vector<AppPoint> rollupApps(const std::vector<AppPoint>& apps, double t, double covered, size_t keep)
{
    std::vector<std::string> order;
    std::map<std::string, std::vector<const AppPoint*>> byApp;
    for (const auto& app : apps) {
        auto& members = byApp[app.app];
        if (members.empty())
            order.push_back(app.app);
        members.push_back(&app);
    }
    std::vector<AppPoint> merged;
    for (const auto& key : order) {
        const auto& members = byApp[key];
        AppPoint point;
        point.t = t;
        point.app = key;
        point.name = members.back()->name;
        double weight = 0;
        double cpu = 0;
        double mem = 0;
        for (const AppPoint* member : members) {
            const double w = weightOf(member->dur);
            weight += w;
            cpu += member->cpu * w;
            mem += member->mem * w;
            point.cpuMax = std::max(point.cpuMax, member->cpuMax);
            point.energy += member->energy;
            point.disk += member->disk;
            point.net += member->net;
        }
        point.dur = std::min(weight, covered);
        point.cpu = covered > 0 ? cpu / covered : 0;
        point.mem = weight > 0 ? mem / weight : 0;
        merged.push_back(point);
    }
    std::stable_sort(merged.begin(), merged.end(), [](const AppPoint& a, const AppPoint& b) { return a.cpu > b.cpu; });
    return select(merged, keep);
}

std::vector<AppPoint> busiestApps(const std::vector<AppPoint>& apps, double t, double covered, size_t count)
{
    auto merged = rollupApps(apps, t, covered, count);
    std::stable_sort(merged.begin(), merged.end(), [](const AppPoint& a, const AppPoint& b) { return a.cpu > b.cpu; });
    std::erase_if(merged, [](const AppPoint& app) { return !(app.cpu > 0); });
    if (merged.size() > count)
        merged.resize(count);
    return merged;
}

std::vector<AppPoint> regroupApps(
    const std::vector<AppPoint>& apps, const std::vector<SysPoint>& sys, double size, size_t keep)
{
    std::map<double, double> covered;
    for (const auto& point : sys)
        covered[bucketOf(point.t, size)] += weightOf(point.dur);
    std::map<double, std::vector<AppPoint>> buckets;
    for (const auto& app : apps)
        buckets[bucketOf(app.t, size)].push_back(app);
    std::vector<AppPoint> result;
    for (const auto& [start, members] : buckets) {
        const auto found = covered.find(start);
        const auto rolled = rollupApps(members, start, found == covered.end() ? 0 : found->second, keep);
        result.insert(result.end(), rolled.begin(), rolled.end());
    }
    return result;
}

std::vector<AppPoint> select(const std::vector<AppPoint>& apps, size_t keep)
{
    std::vector<AppPoint> result;
    std::set<std::string> chosen;
    const auto take = [&](const AppPoint& point) {
        if (chosen.insert(point.app).second)
            result.push_back(point);
    };
    std::vector<const AppPoint*> ranked;
    for (const auto& app : apps)
        ranked.push_back(&app);
    std::stable_sort(
        ranked.begin(), ranked.end(), [](const AppPoint* a, const AppPoint* b) { return a->cpu > b->cpu; });
    for (size_t i = 0; i < ranked.size() && i < keep; ++i)
        take(*ranked[i]);
    for (const auto field : {&AppPoint::mem, &AppPoint::energy, &AppPoint::disk, &AppPoint::net}) {
        std::vector<const AppPoint*> leaders;
        for (const auto& app : apps) {
            if (app.*field > 0)
                leaders.push_back(&app);
        }
        std::stable_sort(leaders.begin(), leaders.end(),
            [field](const AppPoint* a, const AppPoint* b) { return a->*field > b->*field; });
        for (size_t i = 0; i < leaders.size() && i < 3; ++i)
            take(*leaders[i]);
    }
    return result;
}

} // namespace vexel::Downsample
