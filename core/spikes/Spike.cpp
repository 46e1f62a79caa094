#include "spikes/Spike.h"

#include "format/CFormat.h"

#include <array>

namespace vexel {

namespace {

struct KindInfo {
    SpikeKind kind;
    const char* raw;
    const char* title;
};

constexpr std::array<KindInfo, 6> kinds{{
    {SpikeKind::cpu, "cpu", "CPU"},
    {SpikeKind::memory, "memory", "Memory pressure"},
    {SpikeKind::disk, "disk", "Disk writes"},
    {SpikeKind::network, "network", "Network"},
    {SpikeKind::thermal, "thermal", "Heat"},
    {SpikeKind::battery, "battery", "Battery drain"},
}};

} // namespace

std::string rawValue(SpikeKind kind)
{
    return kinds[static_cast<size_t>(kind)].raw;
}

std::string title(SpikeKind kind)
{
    return kinds[static_cast<size_t>(kind)].title;
}

std::string Spike::id() const
{
    return rawValue(kind) + "@" + cformat("%.0f", start);
}

} // namespace vexel
