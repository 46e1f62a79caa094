#pragma once

#include "devservers/DockerState.h"
#include "devservers/PortSource.h"
#include "processes/ProcessSource.h"
#include "rates/NetSource.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vexel {

// The fixture sources answer with whatever state they were last given; the
// demo world republishes its table into them after every advance.

class FixtureProcessSource final : public ProcessSource {
public:
    [[nodiscard]] std::vector<ProcRecord> snapshot(ProcessScope) override
    {
        ++served;
        return records;
    }
    [[nodiscard]] std::optional<std::string> cwd(int32_t pid) override
    {
        const auto found = folders.find(pid);
        return found == folders.end() ? std::nullopt : std::optional(found->second);
    }

    std::vector<ProcRecord> records;
    std::map<int32_t, std::string> folders; // working folder by pid
    int served = 0; // snapshots handed out
};

class FixtureNetSource final : public NetSource {
public:
    [[nodiscard]] std::optional<NetCounters> counters() override { return values; }

    NetCounters values;
};

class FixturePortSource final : public PortSource {
public:
    [[nodiscard]] std::optional<std::vector<ListenSocket>> listeners() override { return sockets; }

    std::optional<std::vector<ListenSocket>> sockets = std::vector<ListenSocket>{};
};

class FixtureDockerSource final : public DockerSource {
public:
    [[nodiscard]] DockerState read() override { return state; }

    DockerState state;
};

} // namespace vexel
