#pragma once

#include "system/MemoryStats.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace vexel::Meminfo {

// The /proc/meminfo fields the reader uses, in bytes. Absent when the line is missing.
struct Fields {
    std::optional<uint64_t> memTotal, memFree, memAvailable, buffers, cached, swapTotal, swapFree, zswap, anonPages,
        shmem, kReclaimable, sReclaimable;

    bool operator==(const Fields&) const = default;
};

// Parses "Name:   1234 kB" lines; kB means KiB. Unknown and malformed lines are skipped.
[[nodiscard]] Fields parse(std::string_view text);

// Memory in the snapshot's buckets. `zramBytes` is the memory used by zram
// pools. app = AnonPages + Shmem; cached = Buffers + (Cached − Shmem) +
// KReclaimable (or SReclaimable); compressed = zram + Zswap; wired is the
// residual, so the five buckets add up to MemTotal. Pressure stays normal.
[[nodiscard]] MemoryStats toMemoryStats(const Fields& fields, uint64_t zramBytes);

// Bytes of memory a zram device uses: field 3 (mem_used_total) of its mm_stat.
[[nodiscard]] std::optional<uint64_t> parseZramMemUsed(std::string_view mmStat);

} // namespace vexel::Meminfo
