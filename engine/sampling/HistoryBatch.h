#pragma once

#include "history/FramePoints.h"
#include "history/HistoryStore.h"
#include "monitor/Frame.h"

#include <functional>
#include <optional>
#include <vector>

namespace vexel {

// The history points of recent frames, written together: at most once a
// minute, and whenever the history is about to be read or compacted or the
// app quits. One transaction a minute instead of one every few seconds cuts
// the bytes the disk sees by about four; a crash loses at most that minute.
class HistoryBatch {
public:
    // Seconds the points may wait before they must be written.
    static constexpr double maxWait = 60;

    // Whether a frame's interval is usable: the first frame (interval 0) and
    // the first after a gap of 120 s or more (sleep, a stalled process) would
    // put rates averaged over the gap into history.
    [[nodiscard]] static bool usable(const Frame& frame);

    // Keeps a frame's points when its interval is usable; whether it was kept.
    bool add(const Frame& frame);

    // Whether the oldest waiting points have waited `maxWait` seconds by `now`.
    [[nodiscard]] bool due(double now) const;
    [[nodiscard]] size_t size() const { return m_pending.size(); }

    // Writes every waiting point in one transaction, followed in the same
    // transaction by `andThen` (compaction: one commit a minute, not two). The
    // points stay waiting when the write fails (the store raises), to be
    // written with the next.
    void writeTo(HistoryStore& store, const std::function<void()>& andThen = {});

private:
    std::vector<FramePoints> m_pending;
    std::optional<double> m_oldest; // the time of the oldest waiting frame
};

} // namespace vexel
