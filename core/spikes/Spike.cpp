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

std::optional<SpikeKind> spikeKindFromRaw(std::string_view raw)
{
    for (const auto& info : kinds) {
        if (raw == info.raw)
            return info.kind;
    }
    return std::nullopt;
}

std::string title(SpikeKind kind)
{
    return kinds[static_cast<size_t>(kind)].title;
}

std::string Spike::id() const
{
    return rawValue(kind) + "@" + cformat("%.0f", start);
}

nlohmann::ordered_json toJson(const Spike& spike)
{
    nlohmann::ordered_json json;
    json["kind"] = rawValue(spike.kind);
    json["start"] = spike.start;
    json["end"] = spike.end;
    json["peak"] = spike.peak;
    if (spike.culprit)
        json["culprit"] = *spike.culprit;
    if (spike.share)
        json["share"] = *spike.share;
    json["summary"] = spike.summary;
    return json;
}

} // namespace vexel
