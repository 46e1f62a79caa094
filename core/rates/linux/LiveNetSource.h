#pragma once

#include "rates/NetSource.h"
#include "rates/linux/SsParser.h"

#include <functional>
#include <map>
#include <optional>
#include <string>

namespace vexel {

// Per-process TCP bytes on Linux, from the kernel's per-socket counters as
// `ss -tinpHeO` prints them. Socket counters vanish when a socket closes, so
// the source keeps each socket's last counters and adds only the growth to a
// running total per process: that total is the cumulative counter the rate
// tracker expects. Sockets with both ends on loopback are left out, so that
// local traffic is not counted twice. TCP only; sockets that open and close
// between two runs are missed.
class LiveNetSource final : public NetSource {
public:
    // Runs `ss` through Shell.
    LiveNetSource();
    // Reads `ss` output from `produce` (tests).
    explicit LiveNetSource(std::function<std::optional<std::string>()> produce);

    [[nodiscard]] std::optional<NetCounters> counters() override;

private:
    std::function<std::optional<std::string>()> m_produce;
    std::map<uint64_t, SsParser::TcpSocket> m_sockets; // by inode, as last seen
    NetCounters m_totals;
    bool m_firstRun = true;
};

} // namespace vexel
