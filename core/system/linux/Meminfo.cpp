#include "system/linux/Meminfo.h"

#include "text/TextScan.h"

#include <algorithm>
#include <utility>

namespace vexel::Meminfo {

namespace {

std::optional<uint64_t>* fieldFor(Fields& fields, std::string_view name)
{
    static constexpr std::pair<std::string_view, std::optional<uint64_t> Fields::*> table[] = {
        {"MemTotal", &Fields::memTotal},
        {"MemFree", &Fields::memFree},
        {"MemAvailable", &Fields::memAvailable},
        {"Buffers", &Fields::buffers},
        {"Cached", &Fields::cached},
        {"SwapTotal", &Fields::swapTotal},
        {"SwapFree", &Fields::swapFree},
        {"Zswap", &Fields::zswap},
        {"AnonPages", &Fields::anonPages},
        {"Shmem", &Fields::shmem},
        {"KReclaimable", &Fields::kReclaimable},
        {"SReclaimable", &Fields::sReclaimable},
    };
    for (const auto& [key, member] : table) {
        if (key == name)
            return &(fields.*member);
    }
    return nullptr;
}

uint64_t saturatingSub(uint64_t a, uint64_t b)
{
    return a > b ? a - b : 0;
}

} // namespace

Fields parse(std::string_view text)
{
    Fields fields;
    TextScan::forEachLine(text, [&](std::string_view line) {
        const auto colon = line.find(':');
        if (colon == std::string_view::npos)
            return;
        auto* field = fieldFor(fields, line.substr(0, colon));
        if (field == nullptr)
            return;
        const auto rest = TextScan::words(line.substr(colon + 1));
        if (rest.empty())
            return;
        const auto value = TextScan::toU64(rest[0]);
        if (!value)
            return;
        const uint64_t scale = rest.size() > 1 && rest[1] == "kB" ? 1024 : 1;
        if (*value > UINT64_MAX / scale)
            return;
        *field = *value * scale;
    });
    return fields;
}

MemoryStats toMemoryStats(const Fields& f, uint64_t zramBytes)
{
    MemoryStats memory;
    memory.total = f.memTotal.value_or(0);
    memory.free = std::min(f.memFree.value_or(0), memory.total);
    const uint64_t shmem = f.shmem.value_or(0);
    const uint64_t reclaimable = f.kReclaimable ? *f.kReclaimable : f.sReclaimable.value_or(0);
    memory.cached = f.buffers.value_or(0) + saturatingSub(f.cached.value_or(0), shmem) + reclaimable;
    memory.app = f.anonPages.value_or(0) + shmem;
    memory.compressed = zramBytes + f.zswap.value_or(0);
    const uint64_t accounted = memory.free + memory.cached + memory.app + memory.compressed;
    memory.wired = saturatingSub(memory.total, accounted);
    memory.swapUsed = saturatingSub(f.swapTotal.value_or(0), f.swapFree.value_or(0));
    return memory;
}

std::optional<uint64_t> parseZramMemUsed(std::string_view mmStat)
{
    const auto fields = TextScan::words(mmStat);
    if (fields.size() < 3)
        return std::nullopt;
    return TextScan::toU64(fields[2]);
}

} // namespace vexel::Meminfo
