#include "spikes/Spike.h"

#include "format/CFormat.h"
#include "text/Sentence.h"

#include <array>

namespace vexel {

namespace {

struct KindInfo {
    SpikeKind kind;
    const char* raw;
    const char* title;
};

constexpr std::array<KindInfo, 6> kinds{{
    {SpikeKind::cpu, "cpu", VEXEL_WORDS("vexel::Vexel", "CPU")},
    {SpikeKind::memory, "memory", VEXEL_WORDS("vexel::Vexel", "Memory pressure")},
    {SpikeKind::disk, "disk", VEXEL_WORDS("vexel::Vexel", "Disk writes")},
    {SpikeKind::network, "network", VEXEL_WORDS("vexel::Vexel", "Network")},
    {SpikeKind::thermal, "thermal", VEXEL_WORDS("vexel::Vexel", "Heat")},
    {SpikeKind::battery, "battery", VEXEL_WORDS("vexel::Vexel", "Battery drain")},
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
