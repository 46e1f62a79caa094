#pragma once

#include "devservers/PortSource.h"

#include <memory>
#include <optional>
#include <string>

namespace vexel {

// Listening sockets from lsof (found with Shell::find; /usr/bin/lsof on
// Debian). Unprivileged, lsof shows only the caller's own processes. lsof
// exits 1 with no output when nothing listens: on Linux that is an empty list.
class LsofPortSource final : public PortSource {
public:
    explicit LsofPortSource(std::optional<std::string> lsof);
    [[nodiscard]] std::optional<std::vector<ListenSocket>> listeners() override;

private:
    std::optional<std::string> m_lsof;
};

// Listening sockets from `ss -ltnpH` (iproute2, always installed), which
// lists every listener; those whose owner cannot be seen are left out.
class SsPortSource final : public PortSource {
public:
    explicit SsPortSource(std::optional<std::string> ss);
    [[nodiscard]] std::optional<std::vector<ListenSocket>> listeners() override;

private:
    std::optional<std::string> m_ss;
};

// The Linux port source: ss, or lsof where iproute2 is missing. ss is the one
// that sees every listener: lsof 4.95 drops a process whose name holds an
// unclosed "(", and ss is 1.8 times as fast with 2,000 processes (BENCHMARKS.md).
[[nodiscard]] std::unique_ptr<PortSource> liveLinuxPortSource();

} // namespace vexel
