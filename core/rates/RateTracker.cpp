#include "rates/RateTracker.h"

namespace vexel {

namespace {

// Below this many seconds since a family's last reading, its previous rate stands.
constexpr double minimumInterval = 0.05;
// A process that started this close before the previous update is a newborn.
constexpr double newbornSlack = 0.5;

uint64_t forward(uint64_t stored, uint64_t current)
{
    return current >= stored ? current - stored : 0;
}

std::optional<double> perSecond(std::optional<uint64_t> stored, std::optional<uint64_t> current, double dt)
{
    if (!stored || !current)
        return std::nullopt;
    return static_cast<double>(forward(*stored, *current)) / dt;
}

} // namespace

RateTracker::Last RateTracker::baseline(
    const ProcRecord& record, const std::optional<NetCounter>& net, double now) const
{
    Last last;
    const bool newborn = m_previousUpdate && record.start >= *m_previousUpdate - newbornSlack;
    if (newborn) {
        // Born since the last look: everything it has done, it did since its start.
        const double born = std::min(record.start, now);
        last.cpu = record.cpuTime ? std::optional(0.0) : std::nullopt;
        last.dr = record.diskRead ? std::optional<uint64_t>(0) : std::nullopt;
        last.dw = record.diskWrite ? std::optional<uint64_t>(0) : std::nullopt;
        last.energy = record.energyNJ ? std::optional<uint64_t>(0) : std::nullopt;
        last.wakeups = record.wakeups ? std::optional<uint64_t>(0) : std::nullopt;
        last.net = net ? std::optional(NetCounter{}) : std::nullopt;
        last.cpuAt = last.diskAt = last.energyAt = last.netAt = born;
        return last;
    }
    last.cpu = record.cpuTime;
    last.dr = record.diskRead;
    last.dw = record.diskWrite;
    last.energy = record.energyNJ;
    last.wakeups = record.wakeups;
    last.net = net;
    last.cpuAt = last.diskAt = last.energyAt = last.netAt = now;
    return last;
}

ProcRates RateTracker::advance(
    Last& last, const ProcRecord& record, const std::optional<NetCounter>& net, bool netTick, double now)
{
    ProcRates rate = last.rate;
    if (const double dt = now - last.cpuAt; dt > minimumInterval) {
        rate.cpu = last.cpu && record.cpuTime ? std::max(*record.cpuTime - *last.cpu, 0.0) / dt : 0.0;
    }
    if (const double dt = now - last.diskAt; dt > minimumInterval) {
        rate.diskRead = perSecond(last.dr, record.diskRead, dt).value_or(0);
        rate.diskWrite = perSecond(last.dw, record.diskWrite, dt).value_or(0);
    }
    if (const double dt = now - last.energyAt; dt > minimumInterval) {
        const auto nanojoules = perSecond(last.energy, record.energyNJ, dt);
        rate.energyW = nanojoules ? std::optional(*nanojoules / 1e9) : std::nullopt;
        rate.wakeups = perSecond(last.wakeups, record.wakeups, dt).value_or(0);
    }
    // A family a reading left out (another user's figures between the readings
    // of everyone) counts 0 this time and keeps its baseline, so the next
    // reading that has it spreads the growth over the whole interval.
    if (record.cpuTime || !last.cpu) {
        last.cpu = record.cpuTime;
        last.cpuAt = now;
    }
    if (record.diskRead || record.diskWrite || !(last.dr || last.dw)) {
        last.dr = record.diskRead;
        last.dw = record.diskWrite;
        last.diskAt = now;
    }
    if (record.energyNJ || record.wakeups || !(last.energy || last.wakeups)) {
        last.energy = record.energyNJ;
        last.wakeups = record.wakeups;
        last.energyAt = now;
    }
    if (netTick) {
        if (const double dt = now - last.netAt; dt > minimumInterval) {
            rate.netIn = last.net && net ? static_cast<double>(forward(last.net->bytesIn, net->bytesIn)) / dt : 0.0;
            rate.netOut = last.net && net ? static_cast<double>(forward(last.net->bytesOut, net->bytesOut)) / dt : 0.0;
        }
        last.net = net;
        last.netAt = now;
    }
    last.rate = rate;
    return rate;
}

RateTracker::Rates RateTracker::update(
    const std::vector<ProcRecord>& records, const std::optional<NetCounters>& net, double now)
{
    Rates rates;
    if (records.empty()) {
        m_last.clear();
        m_previousUpdate = now;
        return rates;
    }
    const bool firstUpdate = !m_previousUpdate;
    std::unordered_map<ProcKey, Last, ProcKeyHash> fresh;
    fresh.reserve(records.size());
    rates.reserve(records.size());
    for (const auto& record : records) {
        const auto key = ProcKey::of(record);
        std::optional<NetCounter> counter;
        if (net) {
            const auto found = net->find(record.pid);
            counter = found != net->end() ? found->second : NetCounter{};
        }
        ProcRates rate;
        const auto previous = m_last.find(key);
        if (previous != m_last.end()) {
            Last last = previous->second;
            rate = advance(last, record, counter, net.has_value(), now);
            fresh.insert_or_assign(key, last);
        } else if (firstUpdate) {
            Last last = baseline(record, counter, now);
            fresh.insert_or_assign(key, last);
        } else {
            Last last = baseline(record, counter, now);
            // Only a newborn's baseline lies in the past; anyone else reports 0 this time.
            if (last.cpuAt < now)
                rate = advance(last, record, counter, net.has_value(), now);
            else
                last.rate = {};
            fresh.insert_or_assign(key, last);
        }
        rates.insert_or_assign(key, rate);
    }
    m_last.swap(fresh);
    m_previousUpdate = now;
    return rates;
}

} // namespace vexel
