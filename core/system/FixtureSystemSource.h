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

private:
    SystemSnapshot m_snapshot;
};

} // namespace vexel
