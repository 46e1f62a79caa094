#include "sampling/HistoryBatch.h"

namespace vexel {

namespace {

// A frame this long after the previous one averages its rates over a gap.
constexpr double longestInterval = 120;

} // namespace

bool HistoryBatch::usable(const Frame& frame)
{
    return frame.interval > 0 && frame.interval < longestInterval;
}

bool HistoryBatch::add(const Frame& frame)
{
    if (!usable(frame))
        return false;
    if (m_pending.empty())
        m_oldest = frame.time;
    m_pending.push_back(historyPoints(frame));
    return true;
}

bool HistoryBatch::due(double now) const
{
    return m_oldest && now - *m_oldest >= maxWait;
}

void HistoryBatch::writeTo(HistoryStore& store, const std::function<void()>& andThen)
{
    if (m_pending.empty() && !andThen)
        return;
    store.batch([&] {
        for (auto& points : m_pending)
            store.append(points.sys, points.apps);
        if (andThen)
            andThen();
    });
    m_pending.clear();
    m_oldest.reset();
}

} // namespace vexel
