#include "system/linux/GpuReader.h"

#include "io/Files.h"
#include "system/linux/PciIds.h"
#include "text/TextScan.h"

#include <algorithm>

namespace vexel {

namespace {

bool isCardName(const std::string& name)
{
    return name.size() > 4 && name.starts_with("card")
        && std::all_of(name.begin() + 4, name.end(), [](char c) { return c >= '0' && c <= '9'; });
}

std::optional<double> numberAt(const std::string& path)
{
    return TextScan::toDouble(Files::readValue(path));
}

} // namespace

void GpuReader::discover()
{
    m_discovered = true;
    const std::string drm = m_roots.sys + "/class/drm";
    auto names = Files::list(drm);
    std::sort(names.begin(), names.end());
    const auto database = Files::read(m_roots.pciIds, 8 * 1024 * 1024);
    for (const auto& name : names) {
        if (!isCardName(name))
            continue;
        Card card;
        card.path = drm + "/" + name;
        const std::string device = card.path + "/device";
        if (!Files::readValue(device + "/class").starts_with("0x03"))
            continue;
        const auto driver = Files::readLink(device + "/driver");
        card.driver = driver ? Files::baseName(*driver) : std::string();
        card.bootVga = Files::readValue(device + "/boot_vga") == "1";
        const auto vendor = PciIds::normaliseId(Files::readValue(device + "/vendor"));
        const auto model = PciIds::normaliseId(Files::readValue(device + "/device"));
        const auto product = Files::readValue(device + "/product_name");
        const auto known = database ? PciIds::deviceName(*database, vendor, model) : std::nullopt;
        card.name = !product.empty() ? product : known.value_or("GPU");
        m_cards.push_back(std::move(card));
    }
}

std::optional<double> GpuReader::load(Card& card, double now) const
{
    const std::string device = card.path + "/device";
    if (card.driver == "amdgpu") {
        // Reading the busy file would wake a suspended discrete GPU.
        if (Files::readValue(device + "/power/runtime_status") == "suspended")
            return 0.0;
        const auto percent = numberAt(device + "/gpu_busy_percent");
        if (!percent)
            return std::nullopt;
        return *percent / 100.0;
    }
    if (card.driver == "i915" || card.driver == "xe") {
        const char* counter
            = card.driver == "xe" ? "/device/tile0/gt0/gtidle/idle_residency_ms" : "/gt/gt0/rc6_residency_ms";
        auto idle = numberAt(card.path + counter);
        if (!idle && card.driver == "i915")
            idle = numberAt(card.path + "/power/rc6_residency_ms");
        if (!idle)
            return std::nullopt;
        std::optional<double> busy;
        if (card.lastIdleMs && now > card.lastTime)
            busy = 1.0 - std::max(0.0, *idle - *card.lastIdleMs) / ((now - card.lastTime) * 1000.0);
        card.lastIdleMs = idle;
        card.lastTime = now;
        return busy.value_or(0.0);
    }
    return std::nullopt;
}

std::optional<GPUStats> GpuReader::read(double now)
{
    if (!m_discovered)
        discover();
    std::optional<GPUStats> busiest;
    bool busiestBoots = false;
    const auto consider = [&](const std::string& name, double utilisation, bool boots) {
        utilisation = std::clamp(utilisation, 0.0, 1.0);
        const bool better = !busiest || utilisation > busiest->utilisation
            || (utilisation == busiest->utilisation && boots && !busiestBoots);
        if (better) {
            busiest = GPUStats{utilisation, name};
            busiestBoots = boots;
        }
    };
    bool hasNvidia = false;
    for (auto& card : m_cards) {
        hasNvidia = hasNvidia || card.driver == "nvidia";
        if (const auto utilisation = load(card, now))
            consider(card.name, *utilisation, card.bootVga);
    }
    if (hasNvidia && m_roots.nvidia) {
        for (const auto& gpu : m_roots.nvidia())
            consider(gpu.name.empty() ? "GPU" : gpu.name, gpu.utilisation, false);
    }
    return busiest;
}

} // namespace vexel
