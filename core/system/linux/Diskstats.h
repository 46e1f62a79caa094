#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vexel::Diskstats {

// One line of /proc/diskstats, in bytes (a sector is always 512 bytes).
struct Device {
    std::string name;
    uint64_t bytesRead = 0;
    uint64_t bytesWritten = 0;

    bool operator==(const Device&) const = default;
};

// Every well-formed line.
[[nodiscard]] std::vector<Device> parse(std::string_view text);

} // namespace vexel::Diskstats
