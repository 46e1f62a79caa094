#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vexel::NetDev {

// One interface's cumulative byte counters from /proc/net/dev.
struct Interface {
    std::string name;
    uint64_t received = 0;
    uint64_t sent = 0;

    bool operator==(const Interface&) const = default;
};

// Every interface line; the two header lines and malformed lines are skipped.
[[nodiscard]] std::vector<Interface> parse(std::string_view text);

} // namespace vexel::NetDev
