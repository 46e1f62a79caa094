#pragma once

#include "system/SystemSource.h"

namespace vexel {

// Answers every read with the same snapshot, stamped with the time asked for.
class FixtureSystemSource final : public SystemSource {
public:
    explicit FixtureSystemSource(SystemSnapshot snapshot)
        : m_snapshot(std::move(snapshot))
    {
    }

    [[nodiscard]] SystemSnapshot read(double now) override
    {
        SystemSnapshot copy = m_snapshot;
        copy.time = now;
        return copy;
    }

    // Replaces the snapshot served from now on (the demo world updates it as time advances).
    void set(SystemSnapshot snapshot) { m_snapshot = std::move(snapshot); }

private:
    SystemSnapshot m_snapshot;
};

} // namespace vexel
