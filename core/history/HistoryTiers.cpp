// Moving history from tier to tier, and reading across tiers.

#include "history/Downsample.h"
#include "history/HistoryStore.h"

#include <cmath>
#include <limits>
#include <map>

namespace vexel {

namespace {

std::string watermarkKey(HistoryTier tier)
{
    return "rolled" + std::to_string(static_cast<int>(tier));
}

} // namespace

void HistoryStore::rollUp(HistoryTier target, double now)
{
    const HistoryTier source = *finer(target);
    const double size = bucketSeconds(target);
    std::optional<double> start = watermark(target);
    if (!start) {
        const auto first = earliest(source);
        if (!first)
            return;
        start = std::floor(*first / size) * size;
    }
    // Only buckets that have ended are rolled; the current one stays in the finer tier.
    const double end = std::floor(now / size) * size;
    if (*start >= end)
        return;
    const auto sys = points(source, *start, end);
    const auto apps = appPoints(source, *start, end);
    const auto rolled = Downsample::regroup(sys, size);
    const auto rolledApps = Downsample::regroupApps(apps, sys, size, appsPerSample);
    std::multimap<double, const AppPoint*> appsByTime;
    for (const auto& app : rolledApps)
        appsByTime.emplace(app.t, &app);
    for (const auto& point : rolled) {
        std::vector<AppPoint> its;
        const auto [first, last] = appsByTime.equal_range(point.t);
        for (auto it = first; it != last; ++it)
            its.push_back(*it->second);
        insert(target, point, its);
    }
    setMeta(watermarkKey(target), end);
}

void HistoryStore::expire(double now, int retentionDays)
{
    for (const auto tier : allHistoryTiers) {
        double cutoff = now - keepSeconds(tier, retentionDays);
        if (tier != HistoryTier::hour) {
            // Nothing expires before the next tier has taken it in.
            const auto coarser = static_cast<HistoryTier>(static_cast<int>(tier) + 1);
            const auto rolled = watermark(coarser);
            cutoff = rolled ? std::min(cutoff, *rolled) : -std::numeric_limits<double>::infinity();
        }
        erase(tier, cutoff);
    }
}

void HistoryStore::compact(double now, int retentionDays)
{
    const bool outermost = m_txDepth < 1;
    batch([&] {
        for (const auto target : {HistoryTier::minute, HistoryTier::tenMinutes, HistoryTier::hour})
            rollUp(target, now);
        expire(now, retentionDays);
        enforceCap();
    });
    if (outermost)
        vacuum();
}

void HistoryStore::vacuum()
{
    try {
        m_db.exec("PRAGMA incremental_vacuum(256)");
    } catch (const HistoryError&) {
        // Space is given back at the next compaction instead.
    }
}

std::vector<SysPoint> HistoryStore::stitchedSeries(HistoryTier tier, double from, double to) const
{
    if (tier == HistoryTier::raw)
        return points(HistoryTier::raw, from, to);
    const double edge = watermark(tier).value_or(from);
    auto result = points(tier, from, std::min(edge, to));
    if (edge < to) {
        const auto live
            = Downsample::regroup(stitchedSeries(*finer(tier), std::max(edge, from), to), bucketSeconds(tier));
        result.insert(result.end(), live.begin(), live.end());
    }
    return result;
}

std::vector<AppPoint> HistoryStore::stitchedAppSeries(HistoryTier tier, double from, double to) const
{
    if (tier == HistoryTier::raw)
        return appPoints(HistoryTier::raw, from, to);
    const double edge = watermark(tier).value_or(from);
    auto result = appPoints(tier, from, std::min(edge, to));
    if (edge < to) {
        const HistoryTier source = *finer(tier);
        const double start = std::max(edge, from);
        const auto live = Downsample::regroupApps(stitchedAppSeries(source, start, to),
            stitchedSeries(source, start, to), bucketSeconds(tier), appsPerSample);
        result.insert(result.end(), live.begin(), live.end());
    }
    return result;
}

HistoryTier HistoryStore::coveringTier(double from) const
{
    for (const auto tier : {HistoryTier::minute, HistoryTier::tenMinutes}) {
        const auto first = earliest(tier);
        if (first && *first <= from + bucketSeconds(tier))
            return tier;
    }
    return HistoryTier::hour;
}

HistoryStore::Totals HistoryStore::totals(double from, double to) const
{
    Totals totals;
    const ReadSnapshot snapshot(*this);
    for (const auto& point : stitchedSeries(coveringTier(from), from, to)) {
        totals.diskR += point.diskR;
        totals.diskW += point.diskW;
        totals.netIn += point.netIn;
        totals.netOut += point.netOut;
    }
    return totals;
}

std::vector<SysPoint> HistoryStore::series(HistoryTier tier, double from, double to) const
{
    const ReadSnapshot snapshot(*this);
    return stitchedSeries(tier, from, to);
}

std::vector<AppPoint> HistoryStore::appSeries(HistoryTier tier, double from, double to) const
{
    const ReadSnapshot snapshot(*this);
    return stitchedAppSeries(tier, from, to);
}

HistoryStore::ReadSnapshot::ReadSnapshot(const HistoryStore& store)
    : m_store(store)
{
    // A writer may commit a compaction between the watermark and the rows
    // read after it; one read transaction sees them all from one moment.
    if (m_store.m_txDepth > 0)
        return;
    m_store.startRead();
    m_open = true;
}

HistoryStore::ReadSnapshot::~ReadSnapshot()
{
    if (!m_open)
        return;
    try {
        m_store.m_db.exec("COMMIT");
    } catch (const HistoryError&) {
        // A read transaction has nothing to lose.
    }
}

} // namespace vexel
